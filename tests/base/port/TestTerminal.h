#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/port/SerialMSComm.h"
#include <QTemporaryDir>

/// A pseudo-terminal made by the test: the test is the far side of the line.
class TestTerminal {
public:
    TestTerminal();
    ~TestTerminal();
    TestTerminal(const TestTerminal&) = delete;
    TestTerminal& operator=(const TestTerminal&) = delete;

    /// Path of the side that the port opens.
    const QString& Path() const { return path_; }
    /// Sends bytes to the port.
    void Send(const QByteArray& bytes);
    /// Bytes that the port has sent, waiting until there are `count` of them; fewer after five
    /// seconds.
    QByteArray Received(int count);
    /// Waits until the driver holds bytes for the port. False after five seconds.
    bool DriverHoldsInput() const;
    /// The far side goes away, as when an adapter is pulled out.
    void Vanish();

private:
    int master_ = -1;
    int watch_ = -1; // the port's side, opened once more to look at
    QString path_;
};

/// An application folder with links, and a port on it.
class PortOnFolder {
public:
    /// Makes the link Support/ports/COMn to `target`.
    void Link(int port, const QString& target);
    /// Opens the port as COM1 on this device.
    void OpenOn(const QString& device);
    /// Monotonic time `seconds` from now.
    double In(double seconds) const { return clock.MonotonicSeconds() + seconds; }

    QTemporaryDir directory;
    ApplicationFolder folder{directory.path()};
    SystemClock clock;
    SerialMSComm port{clock, folder};
};

/// Long enough for every answer on this machine; waiting for it means that the test fails.
constexpr double plenty = 5.0; // seconds
