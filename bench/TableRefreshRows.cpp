#include "bench/TableRefreshRows.h"

#include "bench/BareLoop.h"
#include "bench/BenchProgram.h"
#include "bench/BoardProcess.h"
#include "bench/Median.h"

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr int byteTimesOfRow = 4;
// The rows' addresses: the machine that the board simulates changes some of these. No other read
// of the program sends such a byte, so that their number tells the rows that were read.
constexpr std::uint8_t first = 100;
constexpr std::uint8_t last = 119;
constexpr int slices = 11;
constexpr double sliceTime = 0.5; // seconds
constexpr int bareReads = 100;    // a slice

double RowsPerSecond(BenchProgram& program) {
    const qint64 before = program.port.Sent(first, last);
    const double start = program.clock.MonotonicSeconds();
    program.Run(sliceTime);
    const double seconds = program.clock.MonotonicSeconds() - start;
    return double(program.port.Sent(first, last) - before) / seconds;
}
} // namespace

std::vector<Row> MeasureTableRefresh(const QString& board) {
    const BoardProcess process(board, baud, {QStringLiteral("--demo")});
    BareLoop bare(process.Path());
    BenchProgram program;
    program.OpenByteTable(first, last);
    program.GoOnline(process.Path(), baud);
    program.Run(sliceTime);
    std::vector<double> rates;
    std::vector<double> bareRates;
    for (int slice = 0; slice < slices; ++slice) {
        rates.push_back(RowsPerSecond(program));
        bareRates.push_back(bare.ReadsPerSecond(first, bareReads));
    }
    program.CheckOnline();
    constexpr double line = 1 / (byteTimesOfRow * byteTime);
    return {RowOfRates(QStringLiteral("table rows/s at 19200, 20 in sight : line"), Median(rates),
                       line, goal),
            RowOfRates(QStringLiteral("  the same in a bare loop : line"), Median(bareRates), line,
                       goal)};
}

} // namespace bench
