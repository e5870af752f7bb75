#include "support/BoardPort.h"

#include "base/RunTimeError.h"
#include <algorithm>
#include <cstdint>

void BoardPort::SetCommPort(int port) {
    if (open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    if (port < 1 || port > 99)
        throw RunTimeError(ErrorNumber::InvalidPortNumber);
    commPort_ = port;
}

void BoardPort::SetInputMode(int mode) {
    if (mode != 1)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

void BoardPort::SetPortOpen(bool open) {
    if (open && open_)
        throw RunTimeError(ErrorNumber::PortAlreadyOpen);
    open_ = open;
}

int BoardPort::InBufferCount() {
    return open_ ? line_.HostAvailable(clock_.MonotonicSeconds()) : 0;
}

void BoardPort::SetInBufferCount(int count) {
    if (count != 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    line_.DiscardHostInput(clock_.MonotonicSeconds());
}

void BoardPort::Output(const QByteArray& bytes) {
    if (!open_)
        return;
    for (const char byte : bytes)
        line_.HostWrites(static_cast<std::uint8_t>(byte), clock_.MonotonicSeconds());
}

QByteArray BoardPort::Input() {
    const int waiting = InBufferCount();
    const int wanted = inputLen_ == 0 ? waiting : std::min(inputLen_, waiting);
    QByteArray bytes;
    for (int i = 0; i < wanted; ++i)
        if (const std::optional<std::uint8_t> byte = line_.HostReads(clock_.MonotonicSeconds()))
            bytes.append(static_cast<char>(*byte));
    return bytes;
}

bool BoardPort::WaitForInput(double deadline) {
    if (!open_)
        return false;
    if (InBufferCount() > 0)
        return true;
    const std::optional<double> arrival = line_.NextArrival();
    if (arrival && *arrival <= deadline) {
        clock_.AdvanceTo(*arrival);
        return true;
    }
    clock_.AdvanceTo(deadline);
    return false;
}
