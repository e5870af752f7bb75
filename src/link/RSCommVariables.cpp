#include "base/Dialogs.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "link/VariableValue.h"

namespace {
constexpr std::uint8_t readModeByte = 0x01;
constexpr std::uint8_t writeModeByte = 0x02;
constexpr qint32 lastAddress = 0xFFFF;
constexpr char16_t degreeSign = 176;

// The wire carries 16-bit addresses: a larger one cut short would reach some other byte.
void RefuseBeyondMemory(qint32 first, int count) {
    if (first < 0 || first + qint64(count) - 1 > lastAddress)
        throw RunTimeError(ErrorNumber::Overflow);
}

int WithBit(int byte, int mask, double bit) {
    return bit == 1 ? byte | mask : byte & ~mask;
}

bool IsDropped(QChar c) {
    return c == u' ' || c == u'%' || c == u',' || c == u'.' || c == QChar(degreeSign);
}
} // namespace

QString RSComm::RSRead(const QString& Add) {
    const Operation operation(*this);
    const QString value = ReadVariable(Add);
    if (value.isEmpty() ||
        linkMode_ != LinkMode::Read) // the acknowledge of an attention is no data
        ++failedOperations_;
    return QString::number(WholeNumberValue(value));
}

// Reads in a row carry no handshake, and the same variable again is not even parsed: two bytes
// each way. That makes polling cheap.
QString RSComm::ReadVariable(const QString& variable) {
    if (asksUser_)
        return QString();
    const bool inReadMode = linkMode_ == LinkMode::Read;
    if (!inReadMode || !lastVariable_ || lastVariable_->compare(variable, Qt::CaseInsensitive) != 0)
        ParseForReading(variable);
    lastVariable_ = variable;
    if (!commError_)
        RefuseBeyondMemory(parsed_.address, lastByteCount_);
    if (!inReadMode && !SetTargetMode(LinkMode::Read, readModeByte))
        return QString();
    for (int i = 0; i < lastByteCount_; ++i)
        if (!ReadByteAt(parsed_.address + i, lastBytes_[i])) {
            lastVariable_.reset(); // what lastBytes_ holds is no value of it
            return QString();
        }
    return ComposeValue();
}

void RSComm::ParseForReading(const QString& variable) {
    parsed_ = ParseAddress(variable);
    lastByteCount_ = BytesOfWidth(parsed_.width);
}

// A time-out on the way puts the link mode to none: what then answered was the board's acknowledge
// of an attention, and it waits for a command now. No part of an address may go out to it.
bool RSComm::ReadByteAt(qint32 address, std::uint8_t& data) {
    if (linkMode_ != LinkMode::Read)
        return false;
    const int high = address / 256;
    const int echo = ExchangeByte(static_cast<std::uint8_t>(high));
    if (echo == noReply)
        return false;
    if (echo != high || linkMode_ != LinkMode::Read) {
        linkMode_ = LinkMode::None;
        inDoubt_ = true;
        return false;
    }
    const int reply = ExchangeByte(static_cast<std::uint8_t>(address % 256));
    if (reply == noReply)
        return false;
    data = static_cast<std::uint8_t>(reply);
    return true;
}

QString RSComm::ComposeValue() const {
    if (parsed_.isBit && lastByteCount_ == 1)
        return (lastBytes_[0] & parsed_.mask) != 0 ? QStringLiteral("1") : QStringLiteral("0");
    return QString::number(ValueOfBytes(lastBytes_.data(), lastByteCount_));
}

// The retry of a bit does not read its byte again: where an echo was lost the board has stored the
// attention that followed, and all bits of the byte would stay set.
void RSComm::RSWrite(const QString& Add, const QString& DataValue) {
    const Operation operation(*this);
    WriteVariable(Add, DataValue);
    if (writeFailed_) {
        const ParsedAddress target = ParseAddress(Add);
        const QString byte = ByteVariable(target.address);
        const std::optional<double> bit = NumberToWrite(DataValue);
        if (target.isBit && bit && lastVariable_ == byte)
            WriteVariable(byte, QString::number(WithBit(lastBytes_[0], target.mask, *bit)));
        else
            WriteVariable(Add, DataValue);
    }
    if (!writeTaken_)
        ++failedOperations_;
}

void RSComm::WriteVariable(const QString& Add, const QString& DataValue) {
    if (asksUser_)
        return;
    writeFailed_ = false;
    writeTaken_ = false;
    std::optional<double> value = NumberToWrite(DataValue);
    if (!value)
        return;
    const ParsedAddress target = ParseAddress(Add);
    if (!commError_)
        RefuseBeyondMemory(target.address, BytesOfWidth(target.width));
    parsed_ = target;
    if (target.isBit) {
        value = ByteWithBit(target, *value);
        if (!value)
            return;
    }
    const WidthLimit limit = LimitOfWidth(target.width);
    if (*value > limit.highest) {
        RefuseEntry(limit.message);
        return;
    }
    if (linkMode_ != LinkMode::Write && !SetTargetMode(LinkMode::Write, writeModeByte))
        return;
    SendBytes(target.address, BytesOfValue(target.width, static_cast<qint64>(*value)));
}

// There are no fractions: a point is dropped like the other marks, so "12.5" is 125.
std::optional<double> RSComm::NumberToWrite(const QString& DataValue) {
    QString digits;
    for (const QChar c : DataValue) {
        if (c >= u'0' && c <= u'9') {
            digits += c;
        } else if (!IsDropped(c)) {
            RefuseEntry(QStringLiteral("Only Numerical Data Allowed."));
            return std::nullopt;
        }
    }
    return NumberValue(digits);
}

// A bit write is a read and a write of the whole byte. When the byte could not be read it is not
// written either: its other bits would be lost.
std::optional<double> RSComm::ByteWithBit(const ParsedAddress& target, double bit) {
    if (bit != 0 && bit != 1) {
        RefuseEntry(QStringLiteral("Enter 0 or 1 Only."));
        return std::nullopt;
    }
    const QString present = ReadVariable(ByteVariable(target.address));
    const bool isData = linkMode_ == LinkMode::Read; // else it is the acknowledge of an attention
    if (present.isEmpty() || !isData) {
        lastVariable_.reset();
        writeFailed_ = !commError_;
        return std::nullopt;
    }
    return WithBit(static_cast<int>(NumberValue(present)), target.mask, bit);
}

void RSComm::SendBytes(qint32 address, const QByteArray& bytes) {
    for (const char data : bytes) {
        bool answered = true;
        const bool alike = EchoedAlike(static_cast<std::uint8_t>(address / 256), answered) &&
                           EchoedAlike(static_cast<std::uint8_t>(address % 256), answered) &&
                           EchoedAlike(static_cast<std::uint8_t>(data), answered);
        if (!alike) {
            writeFailed_ = answered;
            inDoubt_ = true;
            if (answered)
                linkMode_ = LinkMode::None;
            return;
        }
        ++address;
    }
    writeTaken_ = true;
}

// After a time-out the reply is the acknowledge of an attention and no echo, even where the byte
// sent has the same value; the board has left write mode.
bool RSComm::EchoedAlike(std::uint8_t byte, bool& answered) {
    const int reply = ExchangeByte(byte);
    answered = reply != noReply;
    return reply == byte && linkMode_ == LinkMode::Write;
}

// A refused write has parsed a variable that was not read: the next read must parse its own again.
void RSComm::RefuseEntry(const QString& reason) {
    lastVariable_.reset();
    dialogs_.MsgBox(QStringLiteral("Error:\r") + reason, MsgStyle::Critical,
                    QStringLiteral("ENTRY ALERT"));
}
