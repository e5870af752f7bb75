#include "board/Options.h"
#include "board/Server.h"
#include "board/Words.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <system_error>
#include <vector>

namespace {

// A standard handle that is closed would be given to the terminal, which then got our answers.
void OpenStandardHandles() {
    for (const int handle : {0, 1, 2})
        if (fcntl(handle, F_GETFD) < 0 && open("/dev/null", O_RDWR) != handle)
            throw std::system_error(errno, std::generic_category(), "/dev/null");
}

// Signals that end the program are read like input, so that the link is removed on the way out.
int CatchSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&set, number);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    std::signal(SIGPIPE, SIG_IGN); // whoever reads the answers may leave
    const int handle = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    if (handle < 0)
        throw std::system_error(errno, std::generic_category(), "signals");
    return handle;
}

int Serve(const haldenboard::Options& options) {
    OpenStandardHandles();
    const int signals = CatchSignals();
    prctl(PR_SET_TIMERSLACK, 1UL); // nanosecond: bytes are paced by time-outs
    haldenboard::Server server(options);
    std::cout << "halden-board: ready on " << server.TerminalName() << std::endl;
    server.Run(signals);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    try {
        const auto options =
            haldenboard::ReadOptions(std::vector<std::string_view>(argv + 1, argv + argc));
        if (!options.help)
            return Serve(options);
        std::cout << haldenboard::OptionsText();
        return EXIT_SUCCESS;
    } catch (const haldenboard::TextError& failure) {
        std::cerr << "halden-board: " << failure.what() << '\n';
        return 2;
    } catch (const std::exception& failure) {
        std::cerr << "halden-board: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
