#pragma once

#include <QProcess>
#include <QString>

/// The simulated board as a process of its own, on a pseudo-terminal.
class BoardProcess {
public:
    static constexpr int k2012 = 50;
    static constexpr int r6500PLS = 69;

    /// Starts `program` with a link to its terminal at `link`, at 9600 baud, as a board of this
    /// index with its demo machine running. IsRunning tells whether it did.
    BoardProcess(const QString& program, const QString& link, int boardIndex = k2012);
    ~BoardProcess();

    bool IsRunning() const { return running_; }
    /// The board is unplugged and another one takes its place on the line.
    void Replace(int boardIndex);
    /// Sends one command line and returns the line that answers it; empty after two seconds.
    QString Command(const QString& line);

private:
    void Begin(int boardIndex);
    void End();
    QString ReadLine();

    const QString program_;
    const QString link_;
    QProcess process_;
    bool running_ = false;
};
