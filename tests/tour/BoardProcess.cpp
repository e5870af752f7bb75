#include "tour/BoardProcess.h"

namespace {
constexpr int patience = 2000; // milliseconds
} // namespace

BoardProcess::BoardProcess(const QString& program, const QString& link) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program, {QStringLiteral("--link"), link, QStringLiteral("--model"),
                             QStringLiteral("50"), QStringLiteral("--baud"), QStringLiteral("9600"),
                             QStringLiteral("--demo"), QStringLiteral("--exit-with-stdin")});
    running_ = process_.waitForStarted(patience) && ReadLine().contains(QLatin1String("ready"));
}

BoardProcess::~BoardProcess() {
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
