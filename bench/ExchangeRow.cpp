#include "bench/ExchangeRow.h"

#include "bench/BareLoop.h"
#include "bench/BenchLink.h"
#include "bench/EchoResponder.h"
#include <functional>
#include <stdexcept>

namespace bench {

namespace {
constexpr double goal = 0.9;
constexpr int slices = 60;          // of each kind
constexpr int readsPerSlice = 500;  // some 40 ms
constexpr int exchangesPerRead = 2; // address high byte, address low byte
constexpr std::uint8_t high = 0x1F; // of address 8176, where the fault code stands
constexpr std::uint8_t low = 0xF0;

void ReadBare(BareLoop& loop) {
    if (loop.Exchange(high) != high || loop.Exchange(low) != low)
        throw std::runtime_error("wrong answer in the bare loop");
}

void ReadThroughLink(BenchLink& host) {
    if (host.link.RSRead(QStringLiteral("B8176")) != QLatin1String("240"))
        throw std::runtime_error("wrong answer through the link");
}

// Seconds that one slice of reads takes.
double Slice(const Clock& clock, const std::function<void()>& read) {
    const double start = clock.MonotonicSeconds();
    for (int i = 0; i < readsPerSlice; ++i)
        read();
    return clock.MonotonicSeconds() - start;
}
} // namespace

Row MeasureExchanges() {
    EchoResponder responder;
    BareLoop bare(responder.Path());
    BenchLink host(responder.Path(), 19200);
    ReadThroughLink(host);
    double bareSeconds = 0;
    double linkSeconds = 0;
    for (int i = 0; i < slices; ++i) {
        bareSeconds += Slice(host.clock, [&] { ReadBare(bare); });
        linkSeconds += Slice(host.clock, [&] { ReadThroughLink(host); });
    }
    host.Check();
    const double exchanges = double(slices) * readsPerSlice * exchangesPerRead;
    return RowOfRates(QStringLiteral("exchanges/s, link : bare loop, unpaced"),
                      exchanges / linkSeconds, exchanges / bareSeconds, goal);
}

} // namespace bench
