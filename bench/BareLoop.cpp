#include "bench/BareLoop.h"

#include "base/Clock.h"
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {
constexpr int replyTimeMs = 1000;
} // namespace

BareLoop::BareLoop(const QString& path) {
    handle_ = open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (handle_ < 0)
        throw std::system_error(errno, std::generic_category(), path.toStdString());
}

BareLoop::~BareLoop() {
    close(handle_);
}

int BareLoop::Exchange(std::uint8_t byte) {
    if (write(handle_, &byte, 1) != 1)
        return -1;
    pollfd source{handle_, POLLIN, 0};
    if (poll(&source, 1, replyTimeMs) <= 0)
        return -1;
    std::uint8_t reply = 0;
    return read(handle_, &reply, 1) == 1 ? reply : -1;
}

double BareLoop::ReadsPerSecond(std::uint16_t address, int reads) {
    const auto high = static_cast<std::uint8_t>(address >> 8);
    const auto low = static_cast<std::uint8_t>(address & 0xFF);
    const SystemClock clock;
    const double start = clock.MonotonicSeconds();
    for (int i = 0; i < reads; ++i)
        if (Exchange(high) != high || Exchange(low) < 0)
            throw std::runtime_error("wrong answer in the bare loop");
    return reads / (clock.MonotonicSeconds() - start);
}

} // namespace bench
