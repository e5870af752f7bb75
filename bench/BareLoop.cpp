#include "bench/BareLoop.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
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

} // namespace bench
