#pragma once

#include <cstdint>

namespace haldenboard {

/// The bytes of the line's language.
namespace wire {

inline constexpr uint8_t Attention = 0xFF;   ///< to the board: leave what you do, hear a command
inline constexpr uint8_t Acknowledge = 0x55; ///< from the board
inline constexpr uint8_t Clock = 0x55;       ///< to the board: give the next byte
inline constexpr uint8_t Ready = 0x00;       ///< from the board, inside the ready poll
/// From the board: this byte is no command and no clock. It is none of the bytes that a host takes
/// for consent, so that a handshake with a board that lacks the command is seen to fail.
inline constexpr uint8_t Refusal = 0xAA;

inline constexpr uint8_t EnterRead = 0x01;
inline constexpr uint8_t EnterWrite = 0x02;
inline constexpr uint8_t EnterProgram = 0x03;

inline constexpr uint8_t ReadScaleFactor = 0x18;
inline constexpr uint8_t ReadOffset = 0x28;
inline constexpr uint8_t ReadPosition = 0x48;
inline constexpr uint8_t ReadSpeed = 0x58;
inline constexpr uint8_t ReadyPoll = 0x38;
inline constexpr uint8_t WriteScaleFactor = 0x1A;
inline constexpr uint8_t WriteOffset = 0x2A;
inline constexpr uint8_t SetpointRecord = 0x1B;
inline constexpr uint8_t PulseTrainRecord = 0x2B;
inline constexpr uint8_t ConfigBlock0 = 0x3B;
inline constexpr uint8_t ConfigBlock1 = 0x4B;
inline constexpr uint8_t ConfigBlock2 = 0x5B;
inline constexpr uint8_t ConfigBlock3 = 0x6B;
inline constexpr uint8_t ReadTable = 0x0C;
inline constexpr uint8_t Recall = 0x09;

} // namespace wire

/// Why the board says a byte; faults on order pick their victims by it.
enum class ReplyKind {
    Plain,      ///< any acknowledge, echo or data byte
    RecordSum,  ///< the sum that answers a program record
    ProgramExit ///< the acknowledge that ends program mode
};

/// One byte from the board.
struct Reply {
    uint8_t value;
    ReplyKind kind = ReplyKind::Plain;
};

} // namespace haldenboard
