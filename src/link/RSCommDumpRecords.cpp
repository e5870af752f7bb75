#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/MSComm.h"
#include "base/RunTimeError.h"
#include "link/DumpPrompt.h"
#include "link/HexImage.h"
#include "link/RSComm.h"

namespace {
constexpr double recordReplyTime = 1.0; // seconds in which the board answers a record
} // namespace

RSComm::RecordsEnd RSComm::SendRecords(const HexImage& image) {
    std::optional<std::uint8_t> lastReply;
    for (const HexLine& line : image.Lines()) {
        DoEvents();
        if (commError_)
            return RecordsEnd::LinkFailed;
        if (line.kind == HexLine::Kind::NoRecord) {
            HaltDump(InvalidProgramText(), MsgStyle::Exclamation, QStringLiteral("Program Dump"));
            return RecordsEnd::Halted;
        }
        if (line.kind == HexLine::Kind::Record && !SendRecord(line, lastReply)) {
            HaltDump(QStringLiteral("Checksum Error, Program Download Halted!"),
                     MsgStyle::Exclamation, QStringLiteral("Program Download"));
            return RecordsEnd::Halted;
        }
    }
    return RecordsEnd::AllSent;
}

// Sends one record without waiting for its bytes to be answered; true if the board's sum is right.
// A board that stays silent is judged by what it said last. Before it has said anything, silence
// is never right.
bool RSComm::SendRecord(const HexLine& record, std::optional<std::uint8_t>& lastReply) {
    constexpr qsizetype headLength = 3; // count and address
    for (const char byte : record.wire.first(headLength))
        ExchangeByte(static_cast<std::uint8_t>(byte), Reply::None);
    currentProgramAdd_ = record.address + u'H';
    for (const char byte : record.wire.sliced(headLength))
        ExchangeByte(static_cast<std::uint8_t>(byte), Reply::None);
    if (const std::optional<std::uint8_t> reply = RecordReply())
        lastReply = reply;
    return lastReply == RecordSum(record.wire);
}

// What the board says to a record, or nothing when it stays silent. A port that fails meanwhile is
// a link failure like any other.
std::optional<std::uint8_t> RSComm::RecordReply() {
    try {
        if (!InputArrivesWithin(recordReplyTime))
            return std::nullopt;
        const QByteArray received = port_->Input();
        if (!received.isEmpty())
            return static_cast<std::uint8_t>(received.front());
    } catch (const RunTimeError&) {
        commError_ = true;
    }
    return std::nullopt;
}
