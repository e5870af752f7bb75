#include "base/CharacterSet.h"
#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "link/HexImage.h"
#include "link/MarkHex.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"

namespace {
constexpr int bytesOfLine = 16;
constexpr int readAttempts = 3;
// The high byte of these addresses would be attention: the board cannot be asked for them.
constexpr qint32 firstUnreadable = 0xFF00;

QString UploadTitle() {
    return QStringLiteral("Program Upload");
}
} // namespace

// Only reads the board, which runs on whatever happens. The image is put on disk as a whole at
// the end, so that a failed upload leaves the old one.
void RSComm::UploadProgram() {
    readingIdent_ = false;
    if (!inUploadMode_)
        return;
    const Operation operation(*this);
    try {
        RunUpload();
    } catch (const RunTimeError& error) {
        readingIdent_ = false;
        inUploadMode_ = false;
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm-Upload Program"),
                     MsgStyle::Information);
    }
    inUploadMode_ = false;
}

void RSComm::RunUpload() {
    if (!onlineMode_) {
        dialogs_.MsgBox(QStringLiteral("Program is Currently OFFLINE.\r\n\r\n"
                                       "Switch to ONLINE MODE to Continue."),
                        MsgStyle::Information, UploadTitle());
        return;
    }
    if (hdnPath_.isEmpty())
        throw RunTimeError(ErrorNumber::FileNotFound);
    const std::optional<QString> revLine = ReadRevLine();
    if (!revLine)
        return;
    WriteTextLine(revPath_, *revLine);
    if (!ReadBoardIndex(hdnPath_))
        return;
    if (HasConfigurationBytes(boardIndex_)) {
        ReadConfiguration();
        WriteTextLine(lcfPath_, LcfLine(boardIndex_, config_));
    }
    if (UploadImage())
        ReportUploadComplete();
    else
        ReportUploadFailed();
}

void RSComm::WriteTextLine(const QString& path, const QString& line) {
    TextWriter file(path);
    file.PrintText(line);
    file.Close();
}

// The ident block as a line of the .REV file; nothing after a communication failure. Every byte
// of the ident counts, 0 too.
std::optional<QString> RSComm::ReadRevLine() {
    readingIdent_ = true;
    QByteArray block;
    for (int offset = 0; offset < IdentBlock::Length && !commError_; ++offset)
        block.append(static_cast<char>(ReadProgramByte(IdentBlock::Address + offset)));
    readingIdent_ = false;
    if (commError_)
        return std::nullopt;
    const auto byteAt = [&block](int offset) { return static_cast<std::uint8_t>(block[offset]); };
    return RevLine(FromWindows1252(block.first(IdentBlock::IdentLength)),
                   byteAt(IdentBlock::ChecksumOffset), byteAt(IdentBlock::RevisionOffset));
}

// What cannot be read any more keeps its default.
void RSComm::ReadConfiguration() {
    config_ = ProgramConfig();
    const auto read = [this](qint32 address, const std::function<qint16(int)>& codeOfByte,
                             qint16& code) {
        if (commError_)
            return;
        const int byte = ReadProgramByte(address);
        if (!commError_)
            code = codeOfByte(byte);
    };
    read(ConfigAddress::A, CodeAOfBoardByte, config_.codeA);
    read(ConfigAddress::B, CodeBOfBoardByte, config_.codeB);
    read(ConfigAddress::C, CodeCOfBoardByte, config_.codeC);
}

// Reads the image range of the model, line by line, and puts the file in place; false after a
// communication failure, with the file untouched.
bool RSComm::UploadImage() {
    const TargetBoard* board = FindTargetBoard(boardIndex_);
    const qint32 start = board ? board->imageStart : 0;
    const qint32 length = board ? board->imageLength : 0;
    TextWriter file(hexPath_);
    currentProgramAdd_ = QStringLiteral(" ");
    for (qint32 offset = 0; offset < length; offset += bytesOfLine) {
        const qint32 address = start + offset;
        currentProgramAdd_ = QString::number(address, 16).toUpper() + u'H';
        DoEvents();
        const QByteArray bytes = ReadImageLine(address);
        if (commError_)
            return false;
        file.PrintText(HexDataLine(address, bytes));
    }
    if (commError_)
        return false;
    file.PrintText(hexEndLine);
    file.Close();
    return true;
}

QByteArray RSComm::ReadImageLine(qint32 address) {
    QByteArray bytes;
    for (int i = 0; i < bytesOfLine && !commError_; ++i)
        bytes.append(static_cast<char>(ReadProgramByte(address + i)));
    return bytes;
}

// One byte, 0 to 255; look at CommError before trusting it. A time-out or a wrong echo on the way
// leaves read mode, and then what came is the answer to an attention byte or nothing at all: it
// would stand in the image as though it were the program, so the byte is read again.
int RSComm::ReadProgramByte(qint32 address) {
    const QString variable = ByteVariable(address);
    for (int attempt = 1;; ++attempt) {
        const auto value = static_cast<int>(WholeNumberValue(ReadVariable(variable)));
        if (commError_ || linkMode_ == LinkMode::Read || address >= firstUnreadable)
            return value;
        if (attempt % readAttempts == 0 && !UserRetriesLine()) {
            commError_ = true;
            return 0;
        }
    }
}

void RSComm::ReportUploadFailed() {
    dialogs_.MsgBox(QStringLiteral("Program Upload Not Complete!\r\n\r\nHEX file not created."),
                    MsgStyle::Critical, UploadTitle());
    onlineMode_ = false;
}

void RSComm::ReportUploadComplete() {
    dialogs_.MsgBox(QStringLiteral("Program Upload Complete!"), MsgStyle::Information,
                    UploadTitle());
    onlineMode_ = true;
}
