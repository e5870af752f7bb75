#pragma once

#include <cstdint>
#include <QString>

namespace bench {

/// The shortest way to exchange a byte over a terminal: write, poll, read, with no library and no
/// protocol above it. What the link is measured against.
class BareLoop {
public:
    /// Opens the terminal. Must come before a port that locks it. Raises std::system_error.
    explicit BareLoop(const QString& path);
    ~BareLoop();
    BareLoop(const BareLoop&) = delete;
    BareLoop& operator=(const BareLoop&) = delete;

    /// Sends a byte and waits up to a second for one; -1 when none came.
    int Exchange(std::uint8_t byte);

    /// Reads a byte of a board in read mode `reads` times and gives the reads per second. Raises
    /// std::runtime_error when the board answers wrongly.
    double ReadsPerSecond(std::uint16_t address, int reads);

private:
    int handle_ = -1;
};

} // namespace bench
