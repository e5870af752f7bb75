#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace bench {

/// The simulated board as a program of its own, as a user runs it. It ends with this object.
class BoardProcess {
public:
    /// Starts it at `baud`, 9600 or 19200, with `more` options. Raises std::runtime_error when it
    /// does not start.
    BoardProcess(const QString& program, int baud, const QStringList& more = {});
    ~BoardProcess();

    /// Path of the terminal that the host opens.
    const QString& Path() const { return path_; }

private:
    QProcess process_;
    QString path_;
};

} // namespace bench
