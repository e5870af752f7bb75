#include "SpoiltCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

// Functions of this executable that bear the names of the system's own: the dynamic linker gives
// them to every library that calls one of these names, and they hand the call on.

namespace {
struct Plan {
    bool counting = false;
    int nth = 0;
    Spoil how = Spoil::DeviceFails;
    int calls = 0;
    bool unflushed = false;
    int namedUnflushed = 0;
};
Plan plan;
bool unnamedRefused = false;

enum class Room { Needed, NotNeeded };

// Whether the call just counted is to fail; errno is set then.
bool Fails(Room room) {
    const bool here = plan.calls == plan.nth;
    const bool full = plan.how == Spoil::DiskStaysFull && plan.nth > 0 && plan.calls >= plan.nth;
    if (here && plan.how == Spoil::DeviceFails)
        errno = EIO;
    else if (full && room == Room::Needed)
        errno = ENOSPC;
    else
        return false;
    return true;
}

void KillIf(Spoil how) {
    if (plan.calls == plan.nth && plan.how == how)
        ::kill(::getpid(), SIGKILL);
}

template <typename Call>
auto Spoilt(Room room, Call call) -> decltype(call()) {
    if (!plan.counting)
        return call();
    ++plan.calls;
    KillIf(Spoil::KilledBefore);
    if (Fails(room))
        return -1;
    const auto result = call();
    KillIf(Spoil::KilledAfter);
    return result;
}

template <typename Function>
Function SystemFunction(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

template <typename Call>
auto Writes(Call call) -> decltype(call()) {
    plan.unflushed = true;
    return Spoilt(Room::Needed, call);
}

template <typename Call>
int Flushes(Call call) {
    plan.unflushed = false;
    return Spoilt(Room::Needed, call);
}

template <typename Call>
int Names(Room room, Call call) {
    plan.namedUnflushed += plan.unflushed ? 1 : 0;
    return Spoilt(room, call);
}

// A disk that fills up takes what it still has room for.
bool FillsUpHere() {
    return plan.counting && plan.how == Spoil::DiskStaysFull && plan.calls + 1 == plan.nth;
}
} // namespace

#define SYSTEM(function) static const auto real = SystemFunction<decltype(&::function)>(#function)

extern "C" {
ssize_t write(int file, const void* bytes, size_t count) {
    SYSTEM(write);
    if (FillsUpHere() && count > 1) {
        ++plan.calls;
        return real(file, bytes, count / 2);
    }
    return Writes([&] { return real(file, bytes, count); });
}

ssize_t sendfile(int to, int from, off_t* offset, size_t count) noexcept {
    SYSTEM(sendfile);
    if (FillsUpHere() && count > 1) {
        ++plan.calls;
        return real(to, from, offset, count / 2);
    }
    return Writes([&] { return real(to, from, offset, count); });
}

int open64(const char* path, int flags, ...) {
    SYSTEM(open64);
    mode_t mode = 0;
    if (flags & (O_CREAT | O_TMPFILE)) {
        va_list rest;
        va_start(rest, flags);
        mode = va_arg(rest, mode_t);
        va_end(rest);
    }
    if (unnamedRefused && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    if ((flags & O_ACCMODE) == O_RDONLY)
        return real(path, flags, mode);
    return Spoilt(Room::Needed, [&] { return real(path, flags, mode); });
}

int fsync(int file) {
    SYSTEM(fsync);
    return Flushes([&] { return real(file); });
}

int fdatasync(int file) {
    SYSTEM(fdatasync);
    return Flushes([&] { return real(file); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    SYSTEM(linkat);
    return Names(Room::Needed, [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int link(const char* from, const char* to) noexcept {
    SYSTEM(link);
    return Names(Room::Needed, [&] { return real(from, to); });
}

int rename(const char* from, const char* to) noexcept {
    SYSTEM(rename);
    return Names(Room::NotNeeded, [&] { return real(from, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    SYSTEM(renameat2);
    return Names(Room::NotNeeded, [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int unlink(const char* path) noexcept {
    SYSTEM(unlink);
    return Spoilt(Room::NotNeeded, [&] { return real(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    SYSTEM(mkdir);
    return Spoilt(Room::Needed, [&] { return real(path, mode); });
}

int rmdir(const char* path) noexcept {
    SYSTEM(rmdir);
    return Spoilt(Room::NotNeeded, [&] { return real(path); });
}

int futimens(int file, const timespec times[2]) noexcept {
    SYSTEM(futimens);
    return Spoilt(Room::NotNeeded, [&] { return real(file, times); });
}
}

std::string NameOf(Spoil how) {
    switch (how) {
    case Spoil::DeviceFails:
        return "DeviceFails";
    case Spoil::DiskStaysFull:
        return "DiskStaysFull";
    case Spoil::KilledBefore:
        return "KilledBefore";
    default:
        return "KilledAfter";
    }
}

SpoiltCalls::SpoiltCalls(int nth, Spoil how) {
    plan = {true, nth, how, 0, false, 0};
}

SpoiltCalls::~SpoiltCalls() {
    plan.counting = false;
}

int SpoiltCalls::Count() const {
    return plan.calls;
}

int SpoiltCalls::NamedUnflushed() const {
    return plan.namedUnflushed;
}

NamedTemporaries::NamedTemporaries(bool named) {
    unnamedRefused = named;
}

NamedTemporaries::~NamedTemporaries() {
    unnamedRefused = false;
}
