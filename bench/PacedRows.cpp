#include "bench/PacedRows.h"

#include "bench/BareLoop.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include "bench/Median.h"
#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <stdexcept>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr double sliceTime = 0.2;        // seconds
constexpr int slices = 21;               // of each way; the median counts

void Exchange(BareLoop& loop, std::uint8_t byte, int expected) {
    if (loop.Exchange(byte) != expected)
        throw std::runtime_error("wrong answer in the bare loop");
}

// One way of reading, and its rate in each slice.
struct Reader {
    QString name;
    int byteTimes; // of the line, for each read
    std::function<void()> read;
    std::vector<double> rates{};
};

double RateOfSlice(const Clock& clock, const std::function<void()>& read) {
    const double start = clock.MonotonicSeconds();
    int reads = 0;
    double seconds = 0;
    do {
        read();
        ++reads;
        seconds = clock.MonotonicSeconds() - start;
    } while (seconds < sliceTime);
    return reads / seconds;
}

Row RowOf(const Reader& reader) {
    return RowOfRates(reader.name, Median(reader.rates), 1 / (reader.byteTimes * byteTime), goal);
}
} // namespace

std::vector<Row> MeasurePacedReads(const QString& board) {
    const BoardProcess process(board, baud);
    BareLoop bare(process.Path());
    BenchLink host(process.Path(), baud);
    // The first read enters read mode, in which the board stays for all that follow.
    host.link.RSRead(QStringLiteral("B8176"));
    Reader readers[] = {
        {QStringLiteral("byte reads/s at 19200 : line"), 4,
         [&] { host.link.RSRead(QStringLiteral("B8176")); }},
        {QStringLiteral("  the same in a bare loop : line"), 4,
         [&] {
             Exchange(bare, 0x1F, 0x1F);
             Exchange(bare, 0xF0, 0x00);
         }},
        {QStringLiteral("word reads/s at 19200 : line"), 8,
         [&] { host.link.RSRead(QStringLiteral("W100")); }},
    };
    for (int slice = 0; slice < slices; ++slice)
        for (Reader& reader : readers)
            reader.rates.push_back(RateOfSlice(host.clock, reader.read));
    host.Check();
    std::vector<Row> rows;
    std::transform(std::begin(readers), std::end(readers), std::back_inserter(rows), RowOf);
    return rows;
}

} // namespace bench
