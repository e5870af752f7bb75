#include "board/Words.h"

#include <charconv>
#include <string>

namespace haldenboard {

namespace {

[[noreturn]] void Refuse(const char* what, const std::string& range) {
    throw TextError(std::string(what) + " must be a number from " + range);
}

template <typename Number, typename... Form>
bool ReadAll(std::string_view word, Number& value, Form... form) {
    const char* end = word.data() + word.size();
    const auto [stopped, failure] = std::from_chars(word.data(), end, value, form...);
    return failure == std::errc{} && stopped == end;
}

} // namespace

std::vector<std::string_view> SplitWords(std::string_view line) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    std::vector<std::string_view> words;
    for (size_t begin = line.find_first_not_of(blanks); begin != std::string_view::npos;
         begin = line.find_first_not_of(blanks, begin)) {
        const size_t end = std::min(line.find_first_of(blanks, begin), line.size());
        words.push_back(line.substr(begin, end - begin));
        begin = end;
    }
    return words;
}

long WholeNumber(std::string_view word, const char* what, long lowest, long highest) {
    const bool hex = word.starts_with("0x") || word.starts_with("0X");
    long value = 0;
    const bool read = hex ? ReadAll(word.substr(2), value, 16) : ReadAll(word, value, 10);
    if (!read || value < lowest || value > highest)
        Refuse(what, std::to_string(lowest) + " to " + std::to_string(highest));
    return value;
}

double RealNumber(std::string_view word, const char* what, double lowest, double highest) {
    double value = 0;
    if (!ReadAll(word, value) || !(value >= lowest && value <= highest))
        Refuse(what, std::to_string(lowest) + " to " + std::to_string(highest));
    return value;
}

} // namespace haldenboard
