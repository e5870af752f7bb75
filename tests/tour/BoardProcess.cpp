#include "tour/BoardProcess.h"

namespace {
constexpr int patience = 2000; // milliseconds
} // namespace

BoardProcess::BoardProcess(const QString& program, const QString& link, int boardIndex)
    : program_(program), link_(link) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Begin(boardIndex);
}

BoardProcess::~BoardProcess() {
    End();
}

void BoardProcess::Replace(int boardIndex) {
    End();
    Begin(boardIndex);
}

void BoardProcess::Begin(int boardIndex) {
    process_.start(program_,
                   {QStringLiteral("--link"), link_, QStringLiteral("--model"),
                    QString::number(boardIndex), QStringLiteral("--baud"), QStringLiteral("9600"),
                    QStringLiteral("--demo"), QStringLiteral("--exit-with-stdin")});
    running_ = process_.waitForStarted(patience) && ReadLine().contains(QLatin1String("ready"));
}

void BoardProcess::End() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(patience))
        process_.kill();
    process_.waitForFinished(patience);
}

QString BoardProcess::Command(const QString& line) {
    process_.write(line.toUtf8() + '\n');
    process_.waitForBytesWritten(patience);
    return ReadLine();
}

QString BoardProcess::ReadLine() {
    while (!process_.canReadLine())
        if (!process_.waitForReadyRead(patience))
            return QString();
    return QString::fromUtf8(process_.readLine()).trimmed();
}
