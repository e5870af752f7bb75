#pragma once

#include "board/BoardModel.h"
#include "board/MemoryDialogue.h"
#include "board/PlsUnit.h"

namespace haldenboard {

/// Turns a minute of the demo machine's shaft: slow enough for a view to follow its position.
inline constexpr int DemoSpeed = 30;

/// Puts into memory what a board holds that left the shop with a small program: the firmware
/// revision, two network addresses, configuration bytes, the program with its ident, checksum and
/// revision, no fault, and a clock at noon of 1 June 2025 on models that have one.
void FillMemory(const BoardModel& model, Memory& memory);

/// Programs the first channels, unless a channel holds something already.
void ProgramDemoChannels(PlsUnit& pls);

} // namespace haldenboard
