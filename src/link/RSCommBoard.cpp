#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "link/FaultTable.h"
#include "link/MarkHex.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "link/VariableAddress.h"

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
