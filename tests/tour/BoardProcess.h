#pragma once

#include <QProcess>
#include <QString>

/// The simulated board as a process of its own, on a pseudo-terminal.
class BoardProcess {
public:
    /// Starts `program` with a link to its terminal at `link`, at 9600 baud, as a K2012 with its
    /// demo machine running. IsRunning tells whether it did.
    BoardProcess(const QString& program, const QString& link);
    ~BoardProcess();

    bool IsRunning() const { return running_; }
    /// Sends one command line and returns the line that answers it; empty after two seconds.
    QString Command(const QString& line);

private:
    QString ReadLine();

    QProcess process_;
    bool running_ = false;
};
