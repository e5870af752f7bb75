#include "board/Options.h"

#include "board/CommandInterpreter.h"
#include "board/Words.h"

namespace haldenboard {

namespace {

constexpr long MostBusy = 1000000000;

int ReadBaud(std::string_view word) {
    if (word == "9600")
        return 9600;
    if (word == "19200")
        return 19200;
    throw TextError("--baud is 9600 or 19200");
}

bool ReadFlag(Options& options, std::string_view name) {
    if (name == "--help")
        options.help = true;
    else if (name == "--demo")
        options.demo = true;
    else if (name == "--unpaced")
        options.baud = 0;
    else if (name == "--exit-with-stdin")
        options.exitWithStdin = true;
    else
        return false;
    return true;
}

void ReadValue(Options& options, std::string_view name, std::string_view value) {
    if (value.empty())
        throw TextError(std::string(name) + " needs a value behind it");
    if (name == "--link")
        options.link = value;
    else if (name == "--log")
        options.log = value;
    else if (name == "--baud")
        options.baud = ReadBaud(value);
    else if (name == "--model")
        options.model = static_cast<int>(WholeNumber(value, "--model", LowestModel, HighestModel));
    else
        options.busy = static_cast<int>(WholeNumber(value, "--busy", 0, MostBusy));
}

bool TakesValue(std::string_view name) {
    return name == "--link" || name == "--log" || name == "--baud" || name == "--model" ||
           name == "--busy";
}

} // namespace

Options ReadOptions(const std::vector<std::string_view>& words) {
    Options options;
    for (size_t place = 0; place < words.size(); ++place) {
        if (ReadFlag(options, words[place]))
            continue;
        if (!TakesValue(words[place]))
            throw TextError("unknown option " + std::string(words[place]) + "; try --help");
        const std::string_view name = words[place];
        ++place;
        ReadValue(options, name, place < words.size() ? words[place] : std::string_view());
    }
    return options;
}

std::string OptionsText() {
    return "halden-board: a simulated controller or limit switch board on a pseudo-terminal\n"
           "\n"
           "  --link PATH        make PATH a symbolic link to the terminal; removed at the end\n"
           "  --baud 9600|19200  pace of the line (9600 if not given)\n"
           "  --unpaced          answer as fast as possible\n"
           "  --model INDEX      49 to 69 (51); 55, 62, 63, 64, 67, 69 are limit switch boards\n"
           "  --demo             run a machine: counters, ramps, bits, clock, turning shaft\n"
           "  --busy COUNT       answer each ready poll \"busy\" so often\n"
           "  --log FILE         write each byte: seconds, > to the board or < from it, hex value\n"
           "  --exit-with-stdin  end when standard input ends\n"
           "\n"
           "Commands on standard input, each answered by one line:\n"
           "  " +
           CommandInterpreter::HelpText() + "\n";
}

} // namespace haldenboard
