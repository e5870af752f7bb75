#include "bench/ExchangeRow.h"

#include "bench/BareLoop.h"
#include "bench/BenchLink.h"
#include "bench/EchoResponder.h"
#include "bench/Median.h"
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <vector>

namespace bench {

namespace {
constexpr double goal = 0.9;
constexpr int slices = 301;         // of each kind
constexpr int readsPerSlice = 100;  // some 10 ms
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

// Exchanges per second in one slice of reads.
double RateOfSlice(const Clock& clock, const std::function<void()>& read) {
    const double start = clock.MonotonicSeconds();
    for (int i = 0; i < readsPerSlice; ++i)
        read();
    return readsPerSlice * exchangesPerRead / (clock.MonotonicSeconds() - start);
}

} // namespace

Row MeasureExchanges() {
    EchoResponder responder;
    BareLoop bare(responder.Path());
    BenchLink host(responder.Path(), 19200);
    ReadThroughLink(host);
    std::vector<double> linkRates;
    std::vector<double> bareRates;
    std::vector<double> ratios;
    for (int i = 0; i < slices; ++i) {
        bareRates.push_back(RateOfSlice(host.clock, [&] { ReadBare(bare); }));
        linkRates.push_back(RateOfSlice(host.clock, [&] { ReadThroughLink(host); }));
        ratios.push_back(linkRates.back() / bareRates.back());
    }
    host.Check();
    return {QStringLiteral("exchanges/s, link : bare loop, unpaced"), Median(linkRates),
            Median(bareRates), Median(ratios), goal};
}

} // namespace bench
