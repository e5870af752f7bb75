#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "link/FaultTable.h"
#include "link/MarkHex.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "link/VariableAddress.h"

namespace {
constexpr std::uint8_t clockByte = 0x55; // asks for the next data byte
constexpr std::uint8_t readOffsetCommand = 0x28;
constexpr int failedPLSRead = -9999;
} // namespace

QString RSComm::TargetboardName(qint16 BoardType) {
    return ::TargetboardName(BoardType);
}

QString RSComm::LCFBoardIndex(qint16 BoardType) {
    return ::LCFBoardIndex(BoardType);
}

QString RSComm::EquateAdd(const QString& Var, qint16 TargetBoardIndex) {
    return ::EquateAdd(Var, TargetBoardIndex);
}

bool RSComm::ValidAdd(const QString& Var, qint16 TargetBoardIndex) {
    return ::ValidAdd(Var, TargetBoardIndex);
}

QString RSComm::MarkHex2HEX(QString& MarkHEX) {
    return ::MarkHex2HEX(MarkHEX);
}

QString RSComm::HEX2MarkHEX(QString& HexCode) {
    return ::HEX2MarkHEX(HexCode);
}

qint16 RSComm::Dec2Octal(qint16 DecNum) {
    return ::Dec2Octal(DecNum);
}

qint16 RSComm::Octal2Dec(qint16 OctNum) {
    return ::Octal2Dec(OctNum);
}

qint16 RSComm::FaultCode() {
    const Operation operation(*this);
    return static_cast<qint16>(WholeNumberValue(ReadVariable(QStringLiteral("B8176"))));
}

QString RSComm::FaultDescription(qint16 FltCode) {
    const QString key = FaultTableKey(FltCode);
    QString text = QStringLiteral("Fault Code (%1H): ").arg(key);
    try {
        AppendFaultText(text, key, folder_.Path(QStringLiteral("support/FaultErrCodes.txt")));
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm FaultDescription"),
                     MsgStyle::Information);
    }
    return text;
}

qint16 RSComm::FirmwareRev() {
    if (!onlineMode_ || commError_)
        return -1;
    const Operation operation(*this);
    return static_cast<qint16>(WholeNumberValue(ReadVariable(QStringLiteral("B8159"))));
}

QString RSComm::PLSOffset() {
    const Operation operation(*this);
    return QString::number(ReadPLSWord(readOffsetCommand));
}

// The reads of a limit switch board are commands: each does its own handshake. A time-out on the
// way leaves the mode: what then answered was the acknowledge of an attention and no data byte.
int RSComm::ReadPLSWord(std::uint8_t command) {
    const auto failed = [this](int reply) {
        return reply == noReply || linkMode_ != LinkMode::PLSReadWord;
    };
    if (!SetTargetMode(LinkMode::PLSReadWord, command))
        return failedPLSRead;
    const int low = ExchangeByte(clockByte);
    if (failed(low))
        return failedPLSRead;
    const int high = ExchangeByte(clockByte);
    if (failed(high))
        return failedPLSRead;
    linkMode_ = LinkMode::None;
    return high * 256 + low;
}
