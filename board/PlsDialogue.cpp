#include "board/PlsDialogue.h"

namespace haldenboard {

namespace {

// Data bytes that follow a command, 0 for commands that are only clocked and for strangers.
int DataBytesOf(uint8_t command) {
    switch (command) {
    case wire::WriteScaleFactor:
    case wire::WriteOffset:
        return 2;
    case wire::SetpointRecord:
    case wire::PulseTrainRecord:
    case wire::ConfigBlock0:
    case wire::ConfigBlock1:
    case wire::ConfigBlock2:
    case wire::ConfigBlock3:
        return 6;
    case wire::Recall:
        return 1;
    default:
        return 0;
    }
}

} // namespace

int PlsDialogue::PositionNow(double now) const {
    const int divisions = unit_.ScaleFactor();
    return (resolver_.Position(now, divisions) + divisions - unit_.Offset()) % divisions;
}

void PlsDialogue::BeginWord(int value) {
    answers_ = {static_cast<uint8_t>(value % 256), static_cast<uint8_t>(value / 256)};
}

void PlsDialogue::BeginPoll() {
    if (busyLeft_ > 0) {
        --busyLeft_;
        answers_ = {wire::Acknowledge};
        return;
    }
    answers_ = {wire::Ready, wire::Acknowledge};
}

bool PlsDialogue::Begin(uint8_t command, double now) {
    command_ = command;
    dataTaken_ = 0;
    dataLeft_ = DataBytesOf(command);
    answers_.clear();
    clocked_ = 0;
    switch (command) {
    case wire::ReadScaleFactor:
        BeginWord(unit_.ScaleFactor());
        break;
    case wire::ReadOffset:
        BeginWord(unit_.Offset());
        break;
    case wire::ReadPosition:
        BeginWord(PositionNow(now));
        break;
    case wire::ReadSpeed:
        BeginWord(resolver_.Speed());
        break;
    case wire::ReadyPoll:
        BeginPoll();
        break;
    case wire::ReadTable: {
        const PlsUnit::Table table = unit_.ConfigTable();
        answers_.assign(table.begin(), table.end());
        break;
    }
    default:
        return dataLeft_ > 0;
    }
    return true;
}

Reply PlsDialogue::Take(uint8_t byte) {
    if (dataLeft_ > 0)
        return TakeData(byte);
    if (byte != wire::Clock) {
        answers_.clear();
        return Reply{wire::Refusal};
    }
    const uint8_t answer = answers_[clocked_++];
    if (command_ == wire::Recall && Done())
        unit_.EdgeGiven(data_[0]);
    return Reply{answer};
}

Reply PlsDialogue::TakeData(uint8_t byte) {
    data_[dataTaken_++] = byte;
    if (--dataLeft_ == 0)
        Carry();
    return Reply{wire::Acknowledge};
}

void PlsDialogue::Carry() {
    if (command_ == wire::Recall) {
        const PlsEdge edge = unit_.CurrentEdge(data_[0]);
        answers_ = {edge.state, static_cast<uint8_t>(edge.position % 256),
                    static_cast<uint8_t>(edge.position / 256)};
        return;
    }
    busyLeft_ = busyAnswers_;
    CarryRecord();
}

void PlsDialogue::CarryRecord() {
    switch (command_) {
    case wire::WriteScaleFactor:
        unit_.Commit(Word(0));
        break;
    case wire::WriteOffset:
        unit_.SetOffset(Word(0));
        break;
    case wire::SetpointRecord:
        if (data_[5] == 0)
            unit_.ClearChannel(data_[0]);
        else if (data_[5] == 1)
            unit_.AddSetpoint(data_[0], Word(1), Word(3));
        break;
    case wire::PulseTrainRecord:
        unit_.SetPulseTrain(data_[0], Word(1), data_[3], data_[4]);
        break;
    default: // the four blocks: 0x3B, 0x4B, 0x5B, 0x6B
        unit_.StageBlock((command_ - wire::ConfigBlock0) / 0x10, data_);
    }
}

} // namespace haldenboard
