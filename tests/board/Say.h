#pragma once

#include "board/SimulatedBoard.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

/// No answer to a byte.
inline constexpr int Silence = -1;

/// Says bytes to a board and gives each one's answer, Silence where there is none.
inline std::vector<int> Say(haldenboard::SimulatedBoard& board, const std::vector<uint8_t>& bytes) {
    std::vector<int> answers;
    for (const uint8_t byte : bytes) {
        const auto reply = board.Receive(byte);
        answers.push_back(reply ? reply->value : Silence);
    }
    return answers;
}

using Answers = std::vector<int>;
