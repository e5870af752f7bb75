#include "HostilePort.h"

#include <algorithm>
#include <array>

namespace {
constexpr double byteTime = 10.0 / 9600;
constexpr int mostSent = 200'000; // bytes: no operation of a script's length needs so many
// Seconds: around the time-outs of 1, 2 and 3 s and the pauses of 50 and 100 ms.
constexpr std::array delays{0.0005, 0.049, 0.051, 0.099, 0.101, 0.25,  0.5,   0.999,
                            1.001,  1.5,   1.999, 2.001, 2.5,   2.999, 3.001, 5.001};
constexpr int longRun = 16; // bytes
} // namespace

void HostilePort::FailIf(Mishap mishap) {
    if (pending_ != mishap)
        return;
    pending_ = Mishap::None;
    throw RunTimeError(ErrorNumber::DeviceIOError);
}

void HostilePort::SetCommPort(int) {
    if (open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
}

void HostilePort::SetPortOpen(bool open) {
    FailIf(Mishap::OpenFails);
    if (open && open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    open_ = open;
    arriving_.clear();
}

int HostilePort::InBufferCount() {
    FailIf(Mishap::CountFails);
    const double now = clock_.MonotonicSeconds();
    return static_cast<int>(std::count_if(arriving_.begin(), arriving_.end(),
                                          [now](const Arriving& it) { return it.at <= now; }));
}

void HostilePort::SetInBufferCount(int count) {
    FailIf(Mishap::ClearFails);
    Require(count == 0, "the input buffer is only ever emptied");
    while (!arriving_.empty() && arriving_.front().at <= clock_.MonotonicSeconds())
        arriving_.pop_front();
}

void HostilePort::Output(const QByteArray& bytes) {
    Require(!watched_ || !watched_->CommError(),
            "no byte goes out while a communication failure stands");
    FailIf(Mishap::OutputFails);
    for (const char byte : bytes)
        if (open_)
            Send(static_cast<std::uint8_t>(byte));
}

void HostilePort::Send(std::uint8_t byte) {
    Require(++sent_ <= mostSent, "an operation comes to its end");
    clock_.Wait(byteTime);
    if (!script_)
        Arrive(AnswerOfBoard(byte));
    else
        Spoil(byte);
}

std::optional<std::uint8_t> HostilePort::AnswerOfBoard(std::uint8_t byte) {
    board_.AdvanceTo(clock_.MonotonicSeconds());
    const auto reply = board_.Receive(byte);
    return reply ? std::optional(reply->value) : std::nullopt;
}

// Answers arrive in the order of the bytes: a late one holds up those behind it.
void HostilePort::Arrive(std::optional<std::uint8_t> answer, double delay) {
    if (!answer || !open_)
        return;
    const double before = arriving_.empty() ? 0.0 : arriving_.back().at;
    arriving_.push_back({std::max(before, clock_.MonotonicSeconds()) + byteTime + delay, *answer});
}

void HostilePort::Spoil(std::uint8_t byte) {
    if (answeredWell_ > 0) {
        --answeredWell_;
        Arrive(AnswerOfBoard(byte));
    } else if (answersLost_ > 0) {
        --answersLost_;
        AnswerOfBoard(byte);
    } else if (!script_->Ended()) {
        SpoilByStep(script_->Next(), byte);
    }
}

void HostilePort::SpoilByStep(std::uint8_t step, std::uint8_t byte) {
    const int number = step % 16;
    switch (step / 16) {
    case 0x0:
    case 0x1:
    case 0x2:
    case 0x3:
        answeredWell_ = step;
        return Arrive(AnswerOfBoard(byte));
    case 0x4:
        AnswerOfBoard(byte);
        return Arrive(script_->Next());
    case 0x5:
        return Arrive(AnswerOfBoard(byte), delays.at(static_cast<std::size_t>(number)));
    case 0x6:
        answersLost_ = number;
        AnswerOfBoard(byte);
        return;
    case 0x7: {
        const auto answer = AnswerOfBoard(byte);
        for (int times = 0; times <= number; ++times)
            Arrive(answer);
        return;
    }
    case 0x8:
        for (int noise = 0; noise <= number; ++noise)
            Arrive(script_->Next());
        return Arrive(AnswerOfBoard(byte));
    case 0x9:
        return Arrive(AnswerOfBoard(script_->Next()));
    case 0xA:
        answeredWell_ = (number + 1) * longRun - 1;
        return Arrive(AnswerOfBoard(byte));
    default:
        return Befall(static_cast<Mishap>(number), byte);
    }
}

// What fails fails once, at the next call of its kind.
void HostilePort::Befall(Mishap mishap, std::uint8_t byte) {
    AnswerOfBoard(byte);
    if (mishap == Mishap::BoardReset) {
        board_.Reset();
    } else if (mishap == Mishap::AdapterPulled) {
        open_ = false;
        arriving_.clear();
    } else {
        pending_ = mishap;
    }
}

QByteArray HostilePort::Input() {
    if (pending_ == Mishap::InputGone) {
        pending_ = Mishap::None;
        return QByteArray();
    }
    if (InBufferCount() == 0)
        return QByteArray();
    const char byte = static_cast<char>(arriving_.front().byte);
    arriving_.pop_front();
    return QByteArray(1, byte);
}

bool HostilePort::WaitForInput(double deadline) {
    FailIf(Mishap::WaitFails);
    if (!open_)
        return false;
    if (!arriving_.empty() && arriving_.front().at <= deadline) {
        clock_.AdvanceTo(arriving_.front().at);
        return true;
    }
    clock_.AdvanceTo(deadline);
    return false;
}
