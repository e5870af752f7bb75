#include "bench/StartRows.h"

#include "base/Clock.h"
#include "bench/Median.h"
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <stdexcept>

namespace bench {

namespace {
constexpr double longestStart = 100; // milliseconds
constexpr double mostMemory = 90;    // megabytes
constexpr int starts = 9;            // one more comes first and fills the data folder
constexpr int startLimitMs = 20000;  // a program that shows no window by then has failed
constexpr int restMs = 500;          // without a paint: the program has come to rest
constexpr int endLimitMs = 5000;

struct Start {
    double milliseconds;
    double megabytes;
};

QProcessEnvironment EnvironmentIn(const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"),
                       QStringLiteral("qt.widgets.painting=true"));
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder);
    return environment;
}

// Megabytes that a process has in memory.
double ResidentMemory(qint64 process) {
    QFile status(QStringLiteral("/proc/%1/status").arg(process));
    if (!status.open(QIODevice::ReadOnly))
        throw std::runtime_error("the program has ended");
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines)
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    throw std::runtime_error("the system does not tell a program's memory");
}

Start StartOnce(const QString& program, const QString& folder) {
    const SystemClock clock;
    QProcess process;
    process.setProcessEnvironment(EnvironmentIn(folder));
    process.setReadChannel(QProcess::StandardError);
    const double begin = clock.MonotonicSeconds();
    process.start(program, {});
    QByteArray log;
    while (!log.contains("Flushing QRegion")) {
        if (!process.waitForReadyRead(startLimitMs))
            throw std::runtime_error("no window comes: " + program.toStdString());
        log += process.readAll();
    }
    const double milliseconds = (clock.MonotonicSeconds() - begin) * 1000;
    while (process.waitForReadyRead(restMs))
        process.readAll();
    const double megabytes = ResidentMemory(process.processId());
    process.terminate();
    if (!process.waitForFinished(endLimitMs))
        process.kill();
    process.waitForFinished(endLimitMs);
    return {milliseconds, megabytes};
}
} // namespace

std::vector<Row> MeasureStart(const QString& program) {
    const QTemporaryDir folder;
    StartOnce(program, folder.path());
    std::vector<double> times;
    std::vector<double> memory;
    for (int i = 0; i < starts; ++i) {
        const Start start = StartOnce(program, folder.path());
        times.push_back(start.milliseconds);
        memory.push_back(start.megabytes);
    }
    return {
        RowOfLimit(QStringLiteral("ms to the first window : limit"), Median(times), longestStart),
        RowOfLimit(QStringLiteral("MB resident at rest : limit"), Median(memory), mostMemory)};
}

} // namespace bench
