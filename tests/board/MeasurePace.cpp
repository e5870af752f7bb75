// Measures what a lockstep exchange of one byte costs a host that answers at once:
//   board_pace TERMINAL [EXCHANGES]
// It reads one memory byte over and over and prints the mean and the spread of an exchange.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

uint8_t Exchange(int line, uint8_t byte) {
    if (write(line, &byte, 1) != 1)
        std::exit(3);
    pollfd input{line, POLLIN, 0};
    uint8_t reply = 0;
    if (poll(&input, 1, 2000) != 1 || read(line, &reply, 1) != 1) {
        std::fprintf(stderr, "no reply\n");
        std::exit(3);
    }
    return reply;
}

} // namespace

int main(int argc, char** argv) {
    const int line = argc > 1 ? open(argv[1], O_RDWR | O_NOCTTY) : -1;
    const int exchanges = argc > 2 ? std::atoi(argv[2]) : 4000;
    termios settings{};
    if (line < 0 || exchanges < 1 || tcgetattr(line, &settings) != 0)
        return 2;
    cfmakeraw(&settings);
    tcsetattr(line, TCSANOW, &settings);
    Exchange(line, 0xFF);
    Exchange(line, 0x01);
    std::vector<double> taken;
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    auto last = start;
    for (int count = 0; count < exchanges; ++count) {
        Exchange(line, count % 2 == 0 ? 0x1F : 0xF0);
        const auto now = Clock::now();
        taken.push_back(std::chrono::duration<double, std::milli>(now - last).count());
        last = now;
    }
    const double all = std::chrono::duration<double, std::milli>(last - start).count();
    std::sort(taken.begin(), taken.end());
    const size_t many = taken.size();
    std::printf("%d exchanges, ms each: mean %.4f, median %.4f, least %.4f, 99 %% below %.4f\n",
                exchanges, all / exchanges, taken[many / 2], taken[0], taken[many * 99 / 100]);
}
