#include "bench/BoardProcess.h"

#include <stdexcept>

namespace bench {

namespace {
constexpr int startTimeMs = 10000;
constexpr int endTimeMs = 2000;
} // namespace

BoardProcess::BoardProcess(const QString& program, int baud, const QStringList& more) {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList options = {QStringLiteral("--baud"), QString::number(baud),
                                 QStringLiteral("--exit-with-stdin")};
    process_.start(program, options + more);
    const QByteArray announcement = "ready on ";
    QByteArray line;
    while (!line.endsWith('\n') && process_.waitForReadyRead(startTimeMs))
        line += process_.readLine();
    const auto place = line.indexOf(announcement);
    if (place < 0)
        throw std::runtime_error("the board does not start: " + program.toStdString());
    path_ = QString::fromLocal8Bit(line.mid(place + announcement.size()).trimmed());
}

BoardProcess::~BoardProcess() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(endTimeMs))
        process_.kill();
    process_.waitForFinished(endTimeMs);
}

} // namespace bench
