#pragma once

#include <stdexcept>
#include <string_view>
#include <vector>

namespace haldenboard {

/// What is wrong with a line of text, for the one who wrote it.
class TextError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Parts a line at its blanks. The words point into it.
std::vector<std::string_view> SplitWords(std::string_view line);

/// A whole number, decimal or hexadecimal behind "0x".
/// @param what names the number in the complaint
/// @throws TextError if it is no number or not lowest to highest
long WholeNumber(std::string_view word, const char* what, long lowest, long highest);

/// A number with or without a fraction.
/// @throws TextError if it is no number or not lowest to highest
double RealNumber(std::string_view word, const char* what, double lowest, double highest);

} // namespace haldenboard
