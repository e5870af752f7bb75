#include "bench/PacedRows.h"

#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include <stdexcept>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr double duration = 3.0;         // seconds of each measurement

Row MeasureReads(BenchLink& host, const QString& variable, int byteTimes, const QString& name) {
    host.link.RSRead(variable);
    const double start = host.clock.MonotonicSeconds();
    int reads = 0;
    double seconds = 0;
    do {
        host.link.RSRead(variable);
        ++reads;
        seconds = host.clock.MonotonicSeconds() - start;
    } while (seconds < duration);
    host.Check();
    return RowOfRates(name, reads / seconds, 1 / (byteTimes * byteTime), goal);
}
} // namespace

std::vector<Row> MeasurePacedReads(const QString& board) {
    const BoardProcess process(board, baud);
    BenchLink host(process.Path(), baud);
    return {MeasureReads(host, QStringLiteral("B8176"), 4,
                         QStringLiteral("byte reads/s at 19200 : line")),
            MeasureReads(host, QStringLiteral("W100"), 8,
                         QStringLiteral("word reads/s at 19200 : line"))};
}

} // namespace bench
