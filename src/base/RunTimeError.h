#pragma once

#include <exception>
#include <QString>

/// Numbers of the run-time errors that the system raises or shows. They are the numbers that
/// users and support desks know from the "Error Number = " boxes, so they never change.
namespace ErrorNumber {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int OutOfMemory = 7;
constexpr int SubscriptOutOfRange = 9;
constexpr int TypeMismatch = 13;
constexpr int FileNotFound = 53;
constexpr int DeviceIOError = 57;
constexpr int FileAlreadyExists = 58;
constexpr int DiskFull = 61;
constexpr int InputPastEndOfFile = 62;
constexpr int DeviceUnavailable = 68;
constexpr int PermissionDenied = 70;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
constexpr int InvalidPortNumber = 8002;
constexpr int PortAlreadyOpen = 8005;
constexpr int DialogCancel = 32755;
} // namespace ErrorNumber

/// The one exception type of run-time errors: a number and the description that the error box
/// shows. Raised where a 16-bit result overflows, an index leaves a table or a file or the port
/// fails; caught by the handler that touches files, which shows it with ShowErrorBox.
class RunTimeError : public std::exception {
public:
    /// An error with the standing description of its number.
    explicit RunTimeError(int number);
    /// An error with a description of its own, for example one that names a device. `source`
    /// names who raised it, for the boxes that show "Error Source = ".
    RunTimeError(int number, QString description, QString source = QStringLiteral("Quentor"));

    int Number() const { return number_; }
    const QString& Description() const { return description_; }
    const QString& Source() const { return source_; }
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    int number_;
    QString description_;
    QString source_;
    QByteArray utf8_;
};

/// Standing description of an error number; of an unknown number
/// "Application-defined or object-defined error".
QString ErrorDescription(int number);

/// `value` as a 16-bit integer. Raises Overflow (6) outside -32768 to 32767.
qint16 ToInteger16(qint64 value);

/// The text of the common report: "Error Number = ", the number, two line ends, the description.
QString ErrorReportText(const RunTimeError& error);

class Dialogs;
/// Shows the common report with the style of the handler (16 critical, 64 information) and its
/// context as title. Error 32755, the Cancel of a file dialog, is silent.
void ShowErrorBox(Dialogs& dialogs, const RunTimeError& error, const QString& title, int style);
