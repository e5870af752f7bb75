#pragma once

#include <cstdint>

namespace haldenboard {

/// How a limit switch board lays out its configuration.
enum class PlsLayout {
    None,     ///< no limit switch board
    Standard, ///< 16 channels (32 on one model), up to 512 divisions a turn
    Large     ///< up to 64 channels and 4096 divisions a turn
};

/// What differs between the models as far as this board shows it on its line.
struct BoardModel {
    int index;                ///< 49 to 69: character code that opens a program set of the model
    PlsLayout layout;         ///< None on controllers
    int mostChannels;         ///< 0 on controllers
    bool hasClock;            ///< a real time clock stands in memory
    uint16_t imageStart;      ///< first address of the user program, 0 if there is none
    uint32_t imageLength;     ///< length of the user program's range in bytes, 0 if there is none
    uint16_t firstOutputByte; ///< two bytes of output points begin here

    bool IsPls() const { return layout != PlsLayout::None; }
};

inline constexpr int LowestModel = 49;
inline constexpr int HighestModel = 69;

/// Gives the model of an index.
/// @param index LowestModel to HighestModel
/// @throws std::invalid_argument for any other index
BoardModel ModelOfIndex(int index);

} // namespace haldenboard
