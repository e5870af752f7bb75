#include "support/ScriptedPort.h"

#include "base/RunTimeError.h"

void ScriptedPort::Reply(int byte, double after) {
    script_.push_back({byte, after});
}

void ScriptedPort::Replies(const std::vector<int>& bytes) {
    for (const int byte : bytes)
        Reply(byte);
}

void ScriptedPort::Silence() {
    script_.push_back({std::nullopt, 0.0});
}

void ScriptedPort::Lose() {
    open_ = false;
    arriving_.clear();
}

void ScriptedPort::RefuseToOpen(int errorNumber, const QString& description) {
    refuseNumber_ = errorNumber;
    refuseDescription_ = description;
}

void ScriptedPort::SetCommPort(int port) {
    if (portNumberRefusals_ > 0) {
        --portNumberRefusals_;
        throw RunTimeError(ErrorNumber::InvalidPortNumber);
    }
    commPort_ = port;
}

void ScriptedPort::SetPortOpen(bool open) {
    if (open && refuseNumber_ != 0)
        throw RunTimeError(refuseNumber_, refuseDescription_);
    open_ = open;
}

int ScriptedPort::InBufferCount() {
    int count = 0;
    for (const Arriving& byte : arriving_)
        count += byte.at <= clock_.MonotonicSeconds() ? 1 : 0;
    return count;
}

void ScriptedPort::SetInBufferCount(int) {
    while (InBufferCount() > 0)
        arriving_.pop_front();
}

void ScriptedPort::Output(const QByteArray& bytes) {
    if (!open_)
        return;
    for (const char byte : bytes)
        AnswerByte(static_cast<std::uint8_t>(byte));
}

void ScriptedPort::AnswerByte(int byte) {
    sent_.push_back(byte);
    const double now = clock_.MonotonicSeconds();
    if (!script_.empty()) {
        const Scripted next = script_.front();
        script_.pop_front();
        if (next.byte)
            arriving_.push_back({*next.byte, now + next.after});
    } else if (answersLikeBoard_) {
        const bool acknowledged = byte == 0xFF || byte <= 0x03;
        arriving_.push_back({acknowledged ? 0x55 : byte, now + 0.001});
    }
}

QByteArray ScriptedPort::Input() {
    if (InBufferCount() == 0)
        return QByteArray();
    const int byte = arriving_.front().byte;
    arriving_.pop_front();
    return QByteArray(1, static_cast<char>(byte));
}

bool ScriptedPort::WaitForInput(double deadline) {
    if (!open_)
        return false;
    if (!arriving_.empty() && arriving_.front().at <= deadline) {
        clock_.AdvanceTo(arriving_.front().at);
        return true;
    }
    clock_.AdvanceTo(deadline);
    return false;
}
