#pragma once

#include "board/WireBytes.h"

#include <array>
#include <cstdint>
#include <optional>

namespace haldenboard {

using Memory = std::array<uint8_t, 65536>;

/// The modes in which a host reaches memory: read, write and program. Each goes on until attention.
class MemoryDialogue {
public:
    explicit MemoryDialogue(Memory& memory) : memory_(memory) {}

    /// Whether `command` enters one of the modes; if so the dialogue begins.
    bool Begin(uint8_t command);

    /// Whether 0xFF would be attention now, and not a low address byte, a data byte or the like.
    bool AttentionHere() const;

    bool InProgramMode() const { return mode_ == Mode::Program; }

    /// Takes one byte that is not attention.
    /// Read: address high (echoed), address low (answered by the byte there). Write: address high,
    /// low and data, each echoed; memory changes as the data byte arrives. Program: count, address
    /// high, low and data, memory changing with each data byte, answered only by the plain 8-bit
    /// sum of them all after the last one; a record of count 0 is answered after its address.
    std::optional<Reply> Take(uint8_t byte);

private:
    enum class Mode { Read, Write, Program };
    enum class Field { Count, High, Low, Data };

    std::optional<Reply> TakeRead(uint8_t byte);
    std::optional<Reply> TakeWrite(uint8_t byte);
    std::optional<Reply> TakeProgram(uint8_t byte);
    std::optional<Reply> EndRecord();
    uint16_t Address() const { return static_cast<uint16_t>(high_ * 256 + low_); }

    Memory& memory_;
    Mode mode_ = Mode::Read;
    Field field_ = Field::High;
    uint8_t high_ = 0;
    uint8_t low_ = 0;
    uint8_t sum_ = 0;
    uint16_t address_ = 0; ///< where the record's next data byte goes
    int left_ = 0;         ///< data bytes of the record still to come
};

} // namespace haldenboard
