#include "board/DemoContents.h"

#include <algorithm>
#include <string_view>

namespace haldenboard {

namespace {

constexpr size_t FirmwareRevision = 8159;
constexpr size_t NetworkAddress1 = 8180;
constexpr size_t ConfigurationC = 8188;
constexpr size_t ConfigurationB = 8189;
constexpr size_t ConfigurationA = 8190;
constexpr size_t NetworkAddress2 = 8191;
constexpr size_t Clock = 43008;
constexpr size_t Ident = 61424; // eight characters, checksum, revision
constexpr uint32_t ProgramLength = 1024;

// Gives the plain 8-bit sum of what it put there.
uint8_t FillProgram(const BoardModel& model, Memory& memory) {
    uint8_t sum = 0;
    for (uint32_t place = 0; place < std::min(ProgramLength, model.imageLength); ++place) {
        const auto value = static_cast<uint8_t>(place * 37 + place / 256 + 11);
        memory[model.imageStart + place] = value;
        sum = static_cast<uint8_t>(sum + value);
    }
    return sum;
}

} // namespace

void FillMemory(const BoardModel& model, Memory& memory) {
    constexpr std::string_view ident = "DEMO01";
    memory[FirmwareRevision] = 21;
    memory[NetworkAddress1] = 1;
    memory[NetworkAddress2] = 2;
    memory[ConfigurationC] = 20;
    memory[ConfigurationB] = 0;
    memory[ConfigurationA] = 12;
    std::copy(ident.begin(), ident.end(), memory.begin() + Ident);
    memory[Ident + 8] = FillProgram(model, memory);
    memory[Ident + 9] = 1;
    if (!model.hasClock)
        return;
    memory[Clock + 4] = 12; // hours; minutes and seconds are 0
    memory[Clock + 7] = 1;
    memory[Clock + 8] = 6;
    memory[Clock + 9] = 25;
}

void ProgramDemoChannels(PlsUnit& pls) {
    for (int channel = 0; channel < pls.Channels(); ++channel)
        if (!pls.Edges(channel).empty())
            return;
    const int turn = pls.ScaleFactor();
    pls.AddSetpoint(0, turn / 12, turn / 6);
    pls.AddSetpoint(0, turn / 2, turn * 3 / 4);
    pls.AddSetpoint(1, turn * 11 / 12, turn / 12); // through division 0
    pls.AddSetpoint(2, turn / 3, turn * 2 / 3);
    if (turn % 36 == 0)
        pls.SetPulseTrain(3, 0, turn / 36, turn / 18);
}

} // namespace haldenboard
