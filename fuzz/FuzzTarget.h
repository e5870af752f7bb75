#pragma once

#include "base/RunTimeError.h"
#include <cstdint>
#include <span>
#include <vector>

/// Bytes that somebody else made: a file, or what comes over the line.
using FuzzInput = std::span<const std::uint8_t>;

/// One reader that is fed with any bytes at all. `run` must return, for every input; a rule that it
/// finds broken ends the process.
struct FuzzTarget {
    const char* name; ///< also the name of its folders below seeds/ and found/
    void (*run)(FuzzInput input);
};

/// All targets that are linked into this program.
std::vector<FuzzTarget>& FuzzTargets();

/// Puts a target on the list, before main begins.
class RegisteredTarget {
public:
    RegisteredTarget(const char* name, void (*run)(FuzzInput)) {
        FuzzTargets().push_back({name, run});
    }
};

/// What the targets need of the process, once: an application object for the event loop; warnings
/// of libraries about odd file names go nowhere.
void PrepareFuzzing();

/// A rule that holds for every input. Prints `rule` and aborts where it does not.
void Require(bool holds, const char* rule);

/// Runs an operation that may refuse its input, in the one way that callers expect; false if it
/// did.
template <typename Operation>
bool Passes(const Operation& operation) {
    try {
        operation();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}
