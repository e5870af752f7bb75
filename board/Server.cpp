#include "board/Server.h"

#include "board/TerminalDelay.h"

#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <poll.h>
#include <sched.h>
#include <system_error>
#include <unistd.h>

namespace haldenboard {

namespace {

// A sleeping thread wakes some tens of microseconds after its time, and a byte time at 19200 baud
// is 521 microseconds. So the last stretch before a byte is due, and the first after one was handed
// over, are spent awake; yielding all the while, because the system's own work on the terminal may
// be queued on this very processor.
constexpr double AwakeBeforeDue = 60e-6; // seconds
constexpr double AwakeAfterByte = 100e-6;
constexpr size_t MostAtOnce = 4096; // bytes; what a terminal holds

timespec ToTimespec(double seconds) {
    const double whole = std::floor(seconds);
    timespec time{};
    time.tv_sec = static_cast<time_t>(whole);
    time.tv_nsec = static_cast<long>((seconds - whole) * 1e9);
    return time;
}

} // namespace

Server::Server(const Options& options)
    : options_(options), board_(options.model), line_(board_), commands_(board_, line_) {
    line_.SetBaud(options.baud);
    line_.KeepLog(!options.log.empty());
    board_.SetBusyAnswers(options.busy);
    if (options.demo)
        board_.StartDemo();
    if (!options.log.empty()) {
        log_.open(options.log, std::ios::trunc);
        if (!log_)
            throw std::system_error(errno, std::generic_category(), options.log);
    }
    oneWay_ = MeasureTurnaround(terminal_) / 2;
    if (!options.link.empty())
        link_.emplace(options.link, terminal_.Name());
}

double Server::Now() const {
    return std::chrono::duration<double>(Clock::now() - start_).count();
}

void Server::Deliver() {
    std::array<uint8_t, MostAtOnce> due;
    size_t count = 0;
    const double now = Now();
    while (count < due.size()) {
        const auto byte = line_.HostReads(now + oneWay_);
        if (!byte)
            break;
        due[count++] = *byte;
    }
    if (count == 0)
        return;
    terminal_.Write(std::span(due.data(), count));
    if (line_.ByteTime() > 0)
        watchUntil_ = now + AwakeAfterByte;
    WriteLog();
}

void Server::WriteLog() {
    if (!log_.is_open())
        return;
    char text[64];
    for (const LoggedByte& byte : line_.TakeLog(Now() + oneWay_)) {
        const int length = std::snprintf(text, sizeof text, "%.6f %c %02X\n", byte.at,
                                         byte.toBoard ? '>' : '<', byte.value);
        log_.write(text, length);
    }
    log_.flush();
}

bool Server::TakeFromHost() {
    std::array<uint8_t, MostAtOnce> bytes;
    const size_t count = terminal_.Read(bytes);
    const double started = Now() - oneWay_;
    for (size_t place = 0; place < count; ++place)
        line_.HostWrites(bytes[place], started);
    return count > 0;
}

void Server::Watch(double until) {
    while (Now() < until && !TakeFromHost())
        sched_yield();
}

void Server::TakeCommands() {
    std::array<char, 4096> text;
    const ssize_t count = read(STDIN_FILENO, text.data(), text.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0) {
        inputOpen_ = false;
        ended_ = ended_ || options_.exitWithStdin;
        return;
    }
    for (const std::string& command :
         inputLines_.Take(std::string_view(text.data(), static_cast<size_t>(count)))) {
        const std::string answer = commands_.Execute(command, Now());
        if (!answer.empty())
            std::cout << answer << '\n';
        if (commands_.QuitWanted())
            break;
    }
    std::cout.flush();
    ended_ = ended_ || commands_.QuitWanted();
}

void Server::WaitForWork(int signals) {
    auto due = line_.NextArrival();
    if (due)
        *due -= oneWay_;
    const double now = Now();
    if (due && now < *due && *due - now <= AwakeBeforeDue)
        return Watch(*due);
    if (!due && now < watchUntil_)
        return Watch(watchUntil_);
    if (due && *due <= now)
        return;
    std::array<pollfd, 3> sources{{{terminal_.Handle(), POLLIN, 0},
                                   {signals, POLLIN, 0},
                                   {inputOpen_ ? STDIN_FILENO : -1, POLLIN, 0}}};
    const timespec rest = due ? ToTimespec(*due - now - AwakeBeforeDue) : timespec{};
    if (ppoll(sources.data(), sources.size(), due ? &rest : nullptr, nullptr) <= 0)
        return;
    if (sources[0].revents != 0)
        TakeFromHost();
    if (sources[1].revents != 0)
        ended_ = true;
    if (sources[2].revents != 0)
        TakeCommands();
}

void Server::Run(int signals) {
    while (!ended_) {
        WaitForWork(signals);
        Deliver();
    }
    WriteLog();
}

} // namespace haldenboard
