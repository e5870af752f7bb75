#include "base/CharacterSet.h"
#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "link/DumpPrompt.h"
#include "link/HexImage.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"

namespace {
constexpr std::uint8_t attention = 0xFF;
constexpr std::uint8_t acknowledge = 0x55;
constexpr std::uint8_t programModeByte = 0x03;
constexpr double dumpRequestTime = 0.1;  // seconds that the board needs to see the dump request
constexpr double programStartTime = 2.0; // seconds until the board hears again after a dump
constexpr int lowestPrintable = 32;
constexpr int modeAttempts = 3; // until the user is asked about a lost program mode byte

QString DumpTitle() {
    return QStringLiteral("Program Download");
}
} // namespace

// A dump ends in one of three ways. Refused before anything is written: the machine runs on and
// the link is online as before. Halted or failed later: offline, and the board may stand in
// program mode until the user goes online again. Complete: online.
void RSComm::DumpProgram() {
    const Operation operation(*this);
    inProgramMode_ = true;
    writingIdent_ = false;
    currentProgramAdd_.clear();
    try {
        RunDump();
    } catch (const RunTimeError& error) {
        onlineMode_ = false;
        inProgramMode_ = false;
        validProgram_ = false;
        writingIdent_ = false;
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm DumpProgram"), MsgStyle::Information);
    }
    inProgramMode_ = false;
}

void RSComm::RunDump() {
    if (!DumpMayStart() || !UserWantsDump())
        return;
    onlineMode_ = false;
    const std::optional<HexImage> image = ImageToSend();
    if (!image) {
        onlineMode_ = true;
        return;
    }
    RequestDump();
    WriteConfiguration();
    EnterProgramMode();
    const RecordsEnd end = SendRecords(*image);
    if (end == RecordsEnd::Halted)
        return;
    if (end == RecordsEnd::AllSent) {
        if (!LeaveProgramMode())
            return;
        WriteIdentBlock();
    }
    ReportDump();
}

bool RSComm::DumpMayStart() {
    if (!onlineMode_) {
        dialogs_.MsgBox(QStringLiteral("Program is Currently OFFLINE.\r\n\r\n"
                                       "Switch to ONLINE MODE to Continue."),
                        MsgStyle::Information, DumpTitle());
        return false;
    }
    if (!validProgram_) {
        dialogs_.MsgBox(InvalidProgramText(), MsgStyle::Exclamation, DumpTitle());
        return false;
    }
    return true;
}

ProgramIdent RSComm::IdentInBoard() {
    ProgramIdent inBoard{QString(), QString(), QString()};
    for (int offset = 0; offset < IdentBlock::Length && !commError_; ++offset) {
        const QString text = ReadVariable(ByteVariable(IdentBlock::Address + offset));
        const auto value = static_cast<int>(WholeNumberValue(text));
        if (offset == IdentBlock::ChecksumOffset)
            inBoard.checksum = text;
        else if (offset == IdentBlock::RevisionOffset)
            inBoard.revision = text;
        else if (value >= lowestPrintable)
            inBoard.ident += CharacterOfCode(static_cast<std::uint8_t>(value));
    }
    return inBoard;
}

bool RSComm::UserWantsDump() {
    const QString question = DumpQuestion(program_, boardName_, IdentInBoard());
    const QString title = QStringLiteral("Program Download - [%1]").arg(program_.ident);
    return dialogs_.MsgBox(question, MsgStyle::YesNoCancelQuestion, title) == MsgAnswer::Yes;
}

// The whole file is read and checked before the first byte of a dump goes out: a running machine
// is not stopped for an image that could not be sent.
std::optional<HexImage> RSComm::ImageToSend() {
    const QString halted = QStringLiteral("\r\n\r\nProgram Downloaded Halted");
    if (!FileSystem().FileExists(hexPath_)) {
        dialogs_.MsgBox(hexPath_ + QLatin1String(" File Does Not Exist.") + halted,
                        MsgStyle::Information, DumpTitle());
        return std::nullopt;
    }
    HexImage image(hexPath_);
    if (image.IsEmpty()) {
        dialogs_.MsgBox(hexPath_ + QLatin1String(" File is Not Valid") + halted,
                        MsgStyle::Exclamation, DumpTitle());
        return std::nullopt;
    }
    if (!image.IsSendable()) {
        validProgram_ = false;
        dialogs_.MsgBox(InvalidProgramText(), MsgStyle::Exclamation, DumpTitle());
        return std::nullopt;
    }
    return image;
}

void RSComm::RequestDump() {
    if (!commError_)
        RSWrite(QStringLiteral("B8181"), QStringLiteral("86"));
    if (!commError_)
        RSWrite(QStringLiteral("B8176"), QStringLiteral("0"));
    if (!commError_) {
        WaitSeconds(dumpRequestTime);
        ExchangeByte(attention);
    }
    linkMode_ = LinkMode::None;
}

void RSComm::WriteConfiguration() {
    if (!HasConfigurationBytes(boardIndex_))
        return;
    if (!commError_) {
        RSWrite(ByteVariable(ConfigAddress::C), QString::number(BoardByteOfCodeC(config_.codeC)));
        RSWrite(ByteVariable(ConfigAddress::B), QString::number(config_.codeB));
    }
    if (!commError_)
        RSWrite(ByteVariable(ConfigAddress::A), QString::number(BoardByteOfCodeA(config_.codeA)));
    if (commError_)
        dialogs_.MsgBox(QStringLiteral("Could Not Set Program Configuration in PLC!"),
                        MsgStyle::Critical, QStringLiteral("Program Config Download"));
}

// What the board answers to the mode byte does not matter, but that it answers does: the attention
// after a time-out takes the board out of program mode again, and the records would be commands to
// a running machine. So they would be where the attention is not acknowledged, since then the board
// does not wait for a command. Both are sent again, and the user is asked when that does not help.
void RSComm::EnterProgramMode() {
    for (int attempt = 1; !commError_; ++attempt) {
        const int reply = ExchangeByte(attention, Reply::Wait, InputBuffer::Clear);
        inDoubt_ = inDoubt_ || reply != acknowledge;
        linkMode_ = LinkMode::Program; // a time-out takes it back
        if (reply == acknowledge)
            ExchangeByte(programModeByte);
        if (reply == acknowledge && linkMode_ == LinkMode::Program)
            break;
        if (attempt % modeAttempts == 0 && !commError_ && !UserRetriesLine())
            commError_ = true;
    }
    linkMode_ = LinkMode::None;
}

bool RSComm::LeaveProgramMode() {
    if (commError_ || ExchangeByte(attention) == acknowledge)
        return true;
    HaltDump(QStringLiteral("PLC did not Exit Program Mode!"), MsgStyle::Critical, DumpTitle());
    return false;
}

void RSComm::WriteIdentBlock() {
    WaitSeconds(programStartTime);
    if (commError_)
        return;
    writingIdent_ = true;
    QStringList values;
    for (const char character : IdentBytes(program_.ident))
        values += QString::number(static_cast<std::uint8_t>(character));
    values += {program_.checksum, program_.revision};
    qint32 address = IdentBlock::Address;
    for (const QString& value : values) {
        RSWrite(ByteVariable(address++), value);
        if (commError_)
            break;
    }
    if (commError_)
        dialogs_.MsgBox(QStringLiteral("Could Not Send Program Ident and Revision to PLC!"),
                        MsgStyle::Critical, DumpTitle());
}

void RSComm::ReportDump() {
    validProgram_ = false;
    writingIdent_ = false;
    if (commError_)
        dialogs_.MsgBox(QStringLiteral("Program Download Not Complete!"), MsgStyle::Critical,
                        DumpTitle());
    else
        dialogs_.MsgBox(QStringLiteral("Program Download Complete!"), MsgStyle::Information,
                        DumpTitle());
    onlineMode_ = !commError_;
}

void RSComm::HaltDump(const QString& reason, int style, const QString& title) {
    dialogs_.MsgBox(reason, style, title);
    validProgram_ = false;
    onlineMode_ = false;
}
