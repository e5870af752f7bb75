#pragma once

#include "board/WireBytes.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace haldenboard {

enum class FaultKind {
    Lost,      ///< the board has said it and the line swallows it
    Late,      ///< the board begins to say it `seconds` late; what follows queues behind it
    Doubled,   ///< the byte comes twice
    Wrong,     ///< the byte comes with the bits of `mask` turned over
    WrongSum,  ///< as Wrong, but only answers to a program record count and suffer
    WrongExit, ///< as Wrong, but only acknowledges of the end of program mode count and suffer
    Garbage,   ///< `bytes` come ahead of the byte
    Reset      ///< the board restarts instead of answering
};

struct Fault {
    FaultKind kind = FaultKind::Lost;
    int nth = 1;                     ///< which reply from now on suffers, 1 the next
    bool standing = false;           ///< from that reply on every reply suffers, until cleared
    double seconds = 0;              ///< Late only: 0 or more
    uint8_t mask = 0xFF;             ///< Wrong, WrongSum, WrongExit only
    std::vector<uint8_t> bytes = {}; ///< Garbage only
};

/// Chances, 0 to 1 each, that a reply suffers. The same seed gives the same run on any machine.
struct RandomFaults {
    uint32_t seed = 1;
    double lost = 0;
    double late = 0;
    double lateSeconds = 0.05; ///< how late at most, seconds
    double doubled = 0;
    double wrong = 0;   ///< one bit turned over
    double garbage = 0; ///< one random byte ahead
    double reset = 0;
};

/// What becomes of one reply.
struct Transmission {
    bool reset = false;         ///< restart the board
    double delay = 0;           ///< seconds before the first byte starts
    std::vector<uint8_t> bytes; ///< what goes out, in order; none if the reply is lost
};

/// The faults that the line is to have. Several may strike one reply.
class FaultPlan {
public:
    /// @throws std::invalid_argument if nth is below 1 or seconds is negative or no number
    void Order(Fault fault);

    /// While on, every reply is lost. The board hears all the same.
    void SetSilence(bool on) { silence_ = on; }

    /// Replaces the random faults and starts their row anew.
    /// @throws std::invalid_argument if a chance is not 0 to 1 or lateSeconds is negative
    void SetRandom(const RandomFaults& chances);

    /// Takes back every fault, standing ones, silence and chances included.
    void Clear();

    /// Faults ordered that have not struck yet, standing ones not counted.
    size_t Outstanding() const;

    /// Passes the board's next reply through the faults.
    Transmission Pass(const Reply& reply);

private:
    void Strike(const Fault& fault, Transmission& sent);
    void StrikeAtRandom(Transmission& sent);
    bool Chance(double probability);

    std::vector<Fault> faults_;
    RandomFaults chances_;
    std::mt19937 random_{1};
    bool anyChance_ = false;
    bool silence_ = false;
    bool lost_ = false; ///< the reply being passed is lost
};

} // namespace haldenboard
