#include "support/ScriptedPort.h"

#include "base/RunTimeError.h"
#include <algorithm>
#include <QRegularExpression>

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
    if (open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    if (portNumberRefusals_ > 0) {
        --portNumberRefusals_;
        throw RunTimeError(ErrorNumber::InvalidPortNumber);
    }
    if (port < 1 || port > 99)
        throw RunTimeError(ErrorNumber::InvalidPortNumber);
    commPort_ = port;
}

void ScriptedPort::SetSettings(const QString& settings) {
    static const QRegularExpression form(QStringLiteral("^[0-9]+,n,8,1$"));
    if (!form.match(settings).hasMatch())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    settings_ = settings;
}

void ScriptedPort::SetInputMode(int mode) {
    if (mode != 1)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void ScriptedPort::SetPortOpen(bool open) {
    if (open && open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    if (open && refuseNumber_ != 0)
        throw RunTimeError(refuseNumber_, refuseDescription_);
    open_ = open;
    arriving_.clear();
}

void ScriptedPort::ReplyTwice(int first, int second) {
    script_.push_back({first, 0.001, second});
}

void ScriptedPort::Receive(const std::vector<int>& bytes) {
    for (const int byte : bytes)
        arriving_.push_back({byte, clock_.MonotonicSeconds()});
}

int ScriptedPort::InBufferCount() {
    int count = 0;
    for (const Arriving& byte : arriving_)
        count += byte.at <= clock_.MonotonicSeconds() ? 1 : 0;
    return count;
}

void ScriptedPort::SetInBufferCount(int count) {
    if (count != 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    while (InBufferCount() > 0)
        arriving_.pop_front();
}

void ScriptedPort::Output(const QByteArray& bytes) {
    if (!open_)
        return;
    if (outputError_ != 0)
        throw RunTimeError(outputError_);
    for (const char byte : bytes)
        AnswerByte(static_cast<std::uint8_t>(byte));
}

void ScriptedPort::AnswerByte(int byte) {
    sent_.push_back(byte);
    const double now = clock_.MonotonicSeconds();
    const int answerOfBoard = AnswerOfBoard(byte);
    if (!script_.empty()) {
        const Scripted next = script_.front();
        script_.pop_front();
        if (next.byte)
            arriving_.push_back({*next.byte, now + next.after});
        if (next.second)
            arriving_.push_back({*next.second, now + 2 * next.after});
    } else if (answersLikeBoard_) {
        arriving_.push_back({answerOfBoard, now + 0.001});
    }
    if (bytesUntilLoss_ > 0 && --bytesUntilLoss_ == 0)
        Lose();
}

// Follows the bytes whether the script answers them or not. 0xFF is an attention where a command
// or an address begins, and data everywhere else.
int ScriptedPort::AnswerOfBoard(int byte) {
    const bool commanded = attended_ && byte != 0xFF;
    attended_ = byte == 0xFF && place_ == 0;
    if (attended_ || commanded) {
        mode_ = commanded && byte <= 2 ? byte : 0;
        return 0x55;
    }
    if (mode_ != 0)
        place_ = (place_ + 1) % (mode_ + 1);
    return byte;
}

QByteArray ScriptedPort::Input() {
    if (withholdsInput_)
        return QByteArray();
    const int waiting = InBufferCount();
    const int wanted = inputLen_ == 0 ? waiting : std::min(inputLen_, waiting);
    QByteArray bytes;
    for (int i = 0; i < wanted; ++i) {
        bytes.append(static_cast<char>(arriving_.front().byte));
        arriving_.pop_front();
    }
    return bytes;
}

bool ScriptedPort::WaitForInput(double deadline) {
    if (waitsUntilError_ > 0 && --waitsUntilError_ == 0)
        throw RunTimeError(waitError_);
    if (!open_)
        return false;
    if (!arriving_.empty() && arriving_.front().at <= deadline) {
        clock_.AdvanceTo(arriving_.front().at);
        return true;
    }
    clock_.AdvanceTo(deadline);
    return false;
}
