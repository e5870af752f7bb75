#include "support/gui/WatchedPort.h"

#include "base/RunTimeError.h"
#include <cstdint>

void WatchedPort::RefuseToOpen(int errorNumber, const QString& description) {
    refuseNumber_ = errorNumber;
    refuseDescription_ = description;
}

void WatchedPort::SetPortOpen(bool open) {
    if (open && refuseNumber_ != 0)
        throw RunTimeError(refuseNumber_, refuseDescription_);
    port_.SetPortOpen(open);
}

void WatchedPort::Output(const QByteArray& bytes) {
    for (const char byte : bytes)
        sent_.push_back(static_cast<std::uint8_t>(byte));
    port_.Output(bytes);
}
