#pragma once

#include "link/HexImage.h"
#include "link/ProgramIdent.h"
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

/// What a board holds after a dump, as far as the image says anything about it.
struct ExpectedMemory {
    static constexpr int size = 0x10000;

    std::vector<std::optional<std::uint8_t>> bytes =
        std::vector<std::optional<std::uint8_t>>(size); ///< by address
    int beyond = 0;                                     ///< bytes of records behind the memory
    /// Bytes of the image, those beyond the memory not counted.
    int Count() const;
};

/// The memory that the records of an image make, in the order of the file: where two name a byte
/// the later one counts. Where the image covers the ident block the block of `ident`, which a dump
/// writes last, counts instead.
ExpectedMemory MemoryOfImage(const HexImage& image, const std::optional<ProgramIdent>& ident);

/// A byte of the board that is not as it should be.
struct Difference {
    int address = 0; ///< 0 to 0xFEFF
    int expected = 0;
    int found = 0;
};

/// What a comparison has found.
struct VerifyReport {
    int compared = 0;                ///< bytes read back
    int unreadable = 0;              ///< bytes of the image that the line cannot ask for
    int differences = 0;             ///< bytes that differ
    std::optional<Difference> first; ///< the one at the lowest address
    bool whole = false;              ///< no read failed on the way
};

/// Compares every byte of the image in ascending order. `read` gives the byte of an address, or
/// nothing to end the comparison. A byte that differs counts only if it is read so twice of three
/// times: data bytes carry no check, and a flipped bit on the line is no difference in the board.
VerifyReport CompareMemory(const ExpectedMemory& expected,
                           const std::function<std::optional<int>(int address)>& read);
