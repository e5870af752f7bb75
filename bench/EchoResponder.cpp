#include "bench/EchoResponder.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>

namespace bench {

namespace {
constexpr std::uint8_t attention = 0xFF;
constexpr std::uint8_t acknowledge = 0x55;
constexpr std::uint8_t lastModeByte = 0x03;

int Checked(int result, const char* what) {
    if (result < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return result;
}

std::uint8_t AnswerTo(std::uint8_t byte) {
    const bool isCommand = byte == attention || (byte > 0 && byte <= lastModeByte);
    return isCommand ? acknowledge : byte;
}
} // namespace

EchoResponder::EchoResponder() {
    master_ = Checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "pseudo-terminal");
    Checked(grantpt(master_), "pseudo-terminal");
    Checked(unlockpt(master_), "pseudo-terminal");
    char name[64] = "";
    Checked(-ptsname_r(master_, name, sizeof name), "pseudo-terminal");
    path_ = QString::fromLocal8Bit(name);
    farSide_ = Checked(open(name, O_RDWR | O_NOCTTY | O_CLOEXEC), name);
    termios settings{};
    Checked(tcgetattr(farSide_, &settings), name);
    cfmakeraw(&settings);
    Checked(tcsetattr(farSide_, TCSANOW, &settings), name);
    wake_ = Checked(eventfd(0, EFD_CLOEXEC), "event");
    thread_ = std::thread([this] { Run(); });
}

EchoResponder::~EchoResponder() {
    const std::uint64_t one = 1;
    if (write(wake_, &one, sizeof one) == sizeof one)
        thread_.join();
    else
        thread_.detach();
    close(wake_);
    close(farSide_);
    close(master_);
}

void EchoResponder::Run() {
    pollfd sources[] = {{master_, POLLIN, 0}, {wake_, POLLIN, 0}};
    for (;;) {
        if (poll(sources, 2, -1) < 0 && errno != EINTR)
            return;
        if (sources[1].revents != 0)
            return;
        std::uint8_t byte = 0;
        if (sources[0].revents == 0 || read(master_, &byte, 1) != 1)
            continue;
        const std::uint8_t answer = AnswerTo(byte);
        if (write(master_, &answer, 1) != 1)
            return;
    }
}

} // namespace bench
