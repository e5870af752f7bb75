#include "base/RunTimeError.h"

#include "base/Dialogs.h"
#include <utility>

RunTimeError::RunTimeError(int number) : RunTimeError(number, ErrorDescription(number)) {}

RunTimeError::RunTimeError(int number, QString description, QString source)
    : number_(number), description_(std::move(description)), source_(std::move(source)),
      utf8_(description_.toUtf8()) {}

QString ErrorDescription(int number) {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("Out of memory");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::DeviceIOError:
        return QStringLiteral("Device I/O error");
    case ErrorNumber::FileAlreadyExists:
        return QStringLiteral("File already exists");
    case ErrorNumber::DiskFull:
        return QStringLiteral("Disk full");
    case ErrorNumber::InputPastEndOfFile:
        return QStringLiteral("Input past end of file");
    case ErrorNumber::DeviceUnavailable:
        return QStringLiteral("Device unavailable");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    case ErrorNumber::InvalidPortNumber:
        return QStringLiteral("Invalid Port Number");
    case ErrorNumber::PortAlreadyOpen:
        return QStringLiteral("Port already open");
    case ErrorNumber::DialogCancel:
        return QStringLiteral("Cancel was selected.");
    default:
        return QStringLiteral("Application-defined or object-defined error");
    }
}

qint16 ToInteger16(qint64 value) {
    if (value < -32768 || value > 32767)
        throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<qint16>(value);
}

QString ErrorReportText(const RunTimeError& error) {
    return QStringLiteral("Error Number = %1\r\n\r\n%2")
        .arg(QString::number(error.Number()), error.Description());
}

void ShowErrorBox(Dialogs& dialogs, const RunTimeError& error, const QString& title, int style) {
    if (error.Number() == ErrorNumber::DialogCancel)
        return;
    dialogs.MsgBox(ErrorReportText(error), style, title);
}
