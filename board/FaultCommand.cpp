#include "board/FaultCommand.h"

#include "board/Words.h"

#include <string>

namespace haldenboard {

namespace {

using Words = std::vector<std::string_view>;

constexpr long MostReplies = 1000000;
constexpr double LongestDelay = 3600;

void OrderRandom(FaultPlan& plan, const Words& words) {
    if (words.size() < 3)
        throw TextError("fault random takes a seed and KIND=CHANCE");
    RandomFaults chances;
    chances.seed = static_cast<uint32_t>(WholeNumber(words[1], "the seed", 0, 0xFFFFFFFFL));
    for (size_t place = 2; place < words.size(); ++place) {
        const size_t equals = words[place].find('=');
        if (equals == std::string_view::npos)
            throw TextError("a chance is given as KIND=CHANCE");
        const std::string_view kind = words[place].substr(0, equals);
        double* chance = kind == "lost"      ? &chances.lost
                         : kind == "late"    ? &chances.late
                         : kind == "lateby"  ? &chances.lateSeconds
                         : kind == "doubled" ? &chances.doubled
                         : kind == "wrong"   ? &chances.wrong
                         : kind == "garbage" ? &chances.garbage
                         : kind == "reset"   ? &chances.reset
                                             : nullptr;
        if (chance == nullptr)
            throw TextError("no such kind of random fault");
        const double highest = kind == "lateby" ? LongestDelay : 1;
        *chance = RealNumber(words[place].substr(equals + 1), "a chance", 0, highest);
    }
    plan.SetRandom(chances);
}

FaultKind KindOf(std::string_view word) {
    struct Named {
        std::string_view name;
        FaultKind kind;
    };
    constexpr Named kinds[] = {
        {"lost", FaultKind::Lost},       {"late", FaultKind::Late},
        {"doubled", FaultKind::Doubled}, {"wrong", FaultKind::Wrong},
        {"sum", FaultKind::WrongSum},    {"exit", FaultKind::WrongExit},
        {"garbage", FaultKind::Garbage}, {"reset", FaultKind::Reset},
    };
    for (const Named& named : kinds)
        if (named.name == word)
            return named.kind;
    throw TextError("no such fault; help names them");
}

// Takes the words that belong to the kind from `place` on, and leaves `place` behind them.
void ReadDetails(Fault& fault, const Words& words, size_t& place) {
    const bool more = place < words.size();
    switch (fault.kind) {
    case FaultKind::Late:
        fault.seconds = RealNumber(more ? words[place++] : "", "the delay", 0, LongestDelay);
        return;
    case FaultKind::Wrong:
        fault.mask =
            static_cast<uint8_t>(WholeNumber(more ? words[place++] : "", "the mask", 1, 255));
        return;
    case FaultKind::Garbage:
        for (; place < words.size() && words[place] != "at"; ++place)
            fault.bytes.push_back(
                static_cast<uint8_t>(WholeNumber(words[place], "garbage", 0, 255)));
        if (fault.bytes.empty())
            throw TextError("fault garbage takes one byte or more");
        place += place < words.size() ? 1 : 0;
        return;
    default:
        return;
    }
}

} // namespace

void OrderFault(FaultPlan& plan, const Words& words) {
    if (words.empty())
        throw TextError("fault takes a kind; help names them");
    if (words[0] == "random")
        return OrderRandom(plan, words);
    if (words[0] == "silence" && words.size() == 1)
        return plan.SetSilence(true);
    Fault fault;
    size_t place = 0;
    if (words[0] == "always") {
        fault.standing = true;
        place = 1;
    }
    fault.kind = KindOf(place < words.size() ? words[place] : "");
    ++place;
    ReadDetails(fault, words, place);
    if (place < words.size())
        fault.nth =
            static_cast<int>(WholeNumber(words[place++], "the reply's number", 1, MostReplies));
    if (place < words.size())
        throw TextError("too many words for this fault");
    plan.Order(fault);
}

} // namespace haldenboard
