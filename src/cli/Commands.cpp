#include "cli/Commands.h"

#include <algorithm>
#include <array>

namespace {
constexpr std::array<Command, 14> commands = {{
    {"ports", "", "list the serial ports", false, ListPortsCommand},
    {"open", "[file.hdn]", "start Quentor, with this set selected", false, OpenCommand},
    {"read", "variable...", "read variables (with --set or --model)", false, ReadCommand},
    {"write", "variable=value...", "write variables (with --set or --model)", false, WriteCommand},
    {"dump", "file.hdn", "download the program of a set into the board", true, DumpCommand},
    {"upload", "file.hdn", "upload the board's program into a set", true, UploadCommand},
    {"verify", "file.hdn", "compare the board with the .HEX of a set", false, VerifyCommand},
    {"data-download", "file.hdn", "data of a set into the board", true, DataDownloadCommand},
    {"data-upload", "file.hdn", "data of the board into a set", true, DataUploadCommand},
    {"pls-download", "file.hdn", "limit switch set into its board", true, PLSDownloadCommand},
    {"pls-upload", "file.hdn", "limit switch board into its set", true, PLSUploadCommand},
    {"faults", "", "read the fault codes", false, FaultsCommand},
    {"reset-faults", "", "reset the fault codes", true, ResetFaultsCommand},
    {"ident", "[file.hdn]", "read the program ident, compare it with a set", false, IdentCommand},
}};
} // namespace

std::span<const Command> Commands() {
    return commands;
}

const Command* FindCommand(const QString& name) {
    const auto* found = std::find_if(commands.begin(), commands.end(), [&name](const Command& it) {
        return name == QLatin1String(it.name);
    });
    return found == commands.end() ? nullptr : found;
}
