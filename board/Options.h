#pragma once

#include "board/Line.h"
#include "board/SimulatedBoard.h"

#include <string>
#include <string_view>
#include <vector>

namespace haldenboard {

/// What the command line of halden-board asks for.
struct Options {
    std::string link;             ///< path of a symbolic link to the terminal, empty for none
    std::string log;              ///< path of the byte log, empty for none
    int baud = Line::DefaultBaud; ///< 9600, 19200, or 0 for no pace
    int model = SimulatedBoard::DefaultModel;
    int busy = 0; ///< busy answers of the ready poll
    bool demo = false;
    bool exitWithStdin = false;
    bool help = false;
};

/// Reads the words behind the program's name.
/// @throws TextError, with what is wrong, for anything not understood
Options ReadOptions(const std::vector<std::string_view>& words);

/// The text of --help, of several lines.
std::string OptionsText();

} // namespace haldenboard
