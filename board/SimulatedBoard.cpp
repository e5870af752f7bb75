#include "board/SimulatedBoard.h"

#include "board/DemoContents.h"

namespace haldenboard {

SimulatedBoard::SimulatedBoard(int model)
    : model_(ModelOfIndex(model)), pls_(model_), memoryDialogue_(memory_),
      plsDialogue_(pls_, resolver_) {
    FillMemory(model_, memory_);
}

bool SimulatedBoard::InProgramMode() const {
    return ear_ == Ear::InMemory && memoryDialogue_.InProgramMode();
}

bool SimulatedBoard::AttentionHere() const {
    switch (ear_) {
    case Ear::InMemory:
        return memoryDialogue_.AttentionHere();
    case Ear::InPls:
        return plsDialogue_.AttentionHere();
    default:
        return true;
    }
}

void SimulatedBoard::Listen(Ear ear) {
    const bool stood = InProgramMode();
    ear_ = ear;
    if (InProgramMode() != stood)
        resolver_.Hold(InProgramMode(), now_);
    if (demo_ && InProgramMode())
        demo_->OutputsOff();
}

Reply SimulatedBoard::OnAttention() {
    const ReplyKind kind = InProgramMode() ? ReplyKind::ProgramExit : ReplyKind::Plain;
    Listen(Ear::ForCommand);
    return Reply{wire::Acknowledge, kind};
}

Reply SimulatedBoard::OnCommand(uint8_t byte) {
    if (memoryDialogue_.Begin(byte))
        Listen(Ear::InMemory);
    else if (model_.IsPls() && plsDialogue_.Begin(byte, now_))
        Listen(Ear::InPls);
    else
        return Reply{wire::Refusal};
    return Reply{wire::Acknowledge};
}

std::optional<Reply> SimulatedBoard::Receive(uint8_t byte) {
    if (byte == wire::Attention && AttentionHere())
        return OnAttention();
    switch (ear_) {
    case Ear::Deaf:
        return std::nullopt;
    case Ear::ForCommand:
        return OnCommand(byte);
    case Ear::InMemory:
        return memoryDialogue_.Take(byte);
    default: {
        const Reply reply = plsDialogue_.Take(byte);
        if (plsDialogue_.Done())
            ear_ = Ear::ForCommand;
        return reply;
    }
    }
}

void SimulatedBoard::AdvanceTo(double now) {
    if (now <= now_)
        return;
    now_ = now;
    if (demo_)
        demo_->AdvanceTo(now, InProgramMode());
}

void SimulatedBoard::Reset() {
    Listen(Ear::Deaf);
    pls_.Restart();
    plsDialogue_.Restart();
}

void SimulatedBoard::SetSpeed(int rpm) {
    resolver_.SetSpeed(rpm, now_);
}

void SimulatedBoard::StartDemo() {
    demo_.emplace(model_, memory_, now_);
    if (InProgramMode())
        demo_->OutputsOff();
    if (!model_.IsPls())
        return;
    ProgramDemoChannels(pls_);
    if (resolver_.Speed() == 0)
        resolver_.SetSpeed(DemoSpeed, now_);
}

} // namespace haldenboard
