#include "board/CommandInterpreter.h"

#include "board/FaultCommand.h"
#include "board/Words.h"

#include <exception>

namespace haldenboard {

namespace {

constexpr long LastAddress = 65535;
constexpr long MostShown = 256;
constexpr long LowestBaud = 50;
constexpr long HighestBaud = 115200;
constexpr long MostBusy = 1000000000;

void Expect(const std::vector<std::string_view>& words, size_t count, const char* usage) {
    if (words.size() != count)
        throw TextError(std::string("usage: ") + usage);
}

} // namespace

std::string CommandInterpreter::HelpText() {
    return "set ADDRESS VALUE... | show ADDRESS [COUNT] | speed RPM | busy COUNT | demo on|off | "
           "fault [always] lost|doubled|reset|sum|exit [N] | fault [always] late SECONDS [N] | "
           "fault [always] wrong MASK [N] | fault [always] garbage BYTE... [at N] | "
           "fault silence | fault random SEED KIND=CHANCE... | clear faults | reset | "
           "baud N | unpaced | help | quit";
}

struct CommandInterpreter::Command {
    std::string_view name;
    Handler handler;
};

CommandInterpreter::Handler CommandInterpreter::HandlerOf(std::string_view name) {
    static constexpr Command commands[] = {
        {"set", &CommandInterpreter::Set},           {"show", &CommandInterpreter::Show},
        {"speed", &CommandInterpreter::Speed},       {"busy", &CommandInterpreter::Busy},
        {"demo", &CommandInterpreter::Demo},         {"fault", &CommandInterpreter::OrderFaults},
        {"clear", &CommandInterpreter::ClearFaults}, {"reset", &CommandInterpreter::Reset},
        {"baud", &CommandInterpreter::Baud},         {"unpaced", &CommandInterpreter::Unpaced},
        {"help", &CommandInterpreter::Help},         {"quit", &CommandInterpreter::Quit},
    };
    for (const Command& command : commands)
        if (command.name == name)
            return command.handler;
    throw TextError("no such command; help names them");
}

std::string CommandInterpreter::Execute(std::string_view text, double now) {
    try {
        line_.Settle(now);
        const Words words = SplitWords(text);
        return words.empty() ? std::string() : (this->*HandlerOf(words[0]))(words);
    } catch (const std::exception& failure) {
        return std::string("error: ") + failure.what();
    }
}

std::string CommandInterpreter::Set(const Words& words) {
    if (words.size() < 3)
        throw TextError("usage: set ADDRESS VALUE...");
    const long first = WholeNumber(words[1], "the address", 0, LastAddress);
    std::vector<uint8_t> values;
    for (size_t place = 2; place < words.size(); ++place)
        values.push_back(static_cast<uint8_t>(WholeNumber(words[place], "a value", 0, 255)));
    if (first + static_cast<long>(values.size()) - 1 > LastAddress)
        throw TextError("the values run over the end of memory");
    for (size_t place = 0; place < values.size(); ++place)
        board_.Poke(static_cast<uint16_t>(first + static_cast<long>(place)), values[place]);
    return "ok";
}

std::string CommandInterpreter::Show(const Words& words) {
    if (words.size() != 2 && words.size() != 3)
        throw TextError("usage: show ADDRESS [COUNT]");
    const long first = WholeNumber(words[1], "the address", 0, LastAddress);
    const long count = words.size() == 3 ? WholeNumber(words[2], "the count", 1, MostShown) : 1;
    if (first + count - 1 > LastAddress)
        throw TextError("the range runs over the end of memory");
    std::string answer = std::to_string(first) + ":";
    for (long place = 0; place < count; ++place)
        answer.append(" ").append(
            std::to_string(board_.Peek(static_cast<uint16_t>(first + place))));
    return answer;
}

std::string CommandInterpreter::Speed(const Words& words) {
    Expect(words, 2, "speed RPM");
    board_.SetSpeed(static_cast<int>(WholeNumber(words[1], "the speed", 0, 65535)));
    return "ok";
}

std::string CommandInterpreter::Busy(const Words& words) {
    Expect(words, 2, "busy COUNT");
    board_.SetBusyAnswers(static_cast<int>(WholeNumber(words[1], "the count", 0, MostBusy)));
    return "ok";
}

std::string CommandInterpreter::Demo(const Words& words) {
    if (words.size() != 2 || (words[1] != "on" && words[1] != "off"))
        throw TextError("usage: demo on|off");
    if (words[1] == "on")
        board_.StartDemo();
    else
        board_.StopDemo();
    return "ok";
}

std::string CommandInterpreter::OrderFaults(const Words& words) {
    OrderFault(line_.Faults(), Words(words.begin() + 1, words.end()));
    return "ok";
}

std::string CommandInterpreter::ClearFaults(const Words& words) {
    if (words.size() != 2 || words[1] != "faults")
        throw TextError("usage: clear faults");
    line_.Faults().Clear();
    return "ok";
}

std::string CommandInterpreter::Reset(const Words& words) {
    Expect(words, 1, "reset");
    board_.Reset();
    return "ok";
}

std::string CommandInterpreter::Baud(const Words& words) {
    Expect(words, 2, "baud N");
    const long baud = WholeNumber(words[1], "the baud rate", LowestBaud, HighestBaud);
    line_.SetBaud(static_cast<int>(baud));
    return "ok";
}

std::string CommandInterpreter::Unpaced(const Words& words) {
    Expect(words, 1, "unpaced");
    line_.SetBaud(0);
    return "ok";
}

std::string CommandInterpreter::Help(const Words&) {
    return HelpText();
}

std::string CommandInterpreter::Quit(const Words& words) {
    Expect(words, 1, "quit");
    quit_ = true;
    return "ok";
}

} // namespace haldenboard
