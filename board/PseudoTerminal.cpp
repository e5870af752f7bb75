#include "board/PseudoTerminal.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <termios.h>
#include <unistd.h>

namespace haldenboard {

namespace {

[[noreturn]] void Fail(const std::string& what, int error) {
    throw std::system_error(error, std::generic_category(), what);
}

// Bytes pass as they are, with no echo, no signals and no line ends changed.
void MakeRaw(int terminal) {
    termios settings{};
    if (tcgetattr(terminal, &settings) != 0)
        Fail("settings of the pseudo-terminal", errno);
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    if (tcsetattr(terminal, TCSANOW, &settings) != 0)
        Fail("settings of the pseudo-terminal", errno);
}

} // namespace

PseudoTerminal::PseudoTerminal() {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (master_ < 0)
        Fail("no pseudo-terminal", errno);
    char name[128];
    if (grantpt(master_) != 0 || unlockpt(master_) != 0 ||
        ptsname_r(master_, name, sizeof name) != 0) {
        const int error = errno;
        close(master_);
        Fail("no pseudo-terminal", error);
    }
    name_ = name;
    slave_ = open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (slave_ < 0) {
        const int error = errno;
        close(master_);
        Fail(name_, error);
    }
    MakeRaw(slave_);
}

PseudoTerminal::~PseudoTerminal() {
    close(slave_);
    close(master_);
}

size_t PseudoTerminal::Read(std::span<uint8_t> room) {
    const ssize_t count = read(master_, room.data(), room.size());
    return count > 0 ? static_cast<size_t>(count) : 0;
}

void PseudoTerminal::Write(std::span<const uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(master_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return;
        bytes = bytes.subspan(static_cast<size_t>(count));
    }
}

TerminalLink::TerminalLink(std::string path, std::string target)
    : path_(std::move(path)), target_(std::move(target)) {
    namespace fs = std::filesystem;
    std::error_code unknown;
    const fs::file_status there = fs::symlink_status(path_, unknown);
    if (fs::exists(there) && !fs::is_symlink(there))
        Fail(path_ + " is no symbolic link", EEXIST);
    // Made beside its place and moved over it, so that a host never finds the path missing.
    const std::string fresh = path_ + ".new" + std::to_string(getpid());
    if (symlink(target_.c_str(), fresh.c_str()) != 0)
        Fail(path_, errno);
    if (rename(fresh.c_str(), path_.c_str()) != 0) {
        const int error = errno;
        unlink(fresh.c_str());
        Fail(path_, error);
    }
}

TerminalLink::~TerminalLink() {
    std::error_code failure;
    if (std::filesystem::read_symlink(path_, failure) == target_ && !failure)
        unlink(path_.c_str());
}

} // namespace haldenboard
