#pragma once

#include <QString>
#include <thread>

namespace bench {

/// The least that can stand at the other side of the line: a pseudo-terminal and a thread that
/// acknowledges attention and mode bytes and sends every other byte back. It takes no time of its
/// own, so that what is measured against it is the host's side.
class EchoResponder {
public:
    /// Raises std::system_error when there is no pseudo-terminal.
    EchoResponder();
    ~EchoResponder();
    EchoResponder(const EchoResponder&) = delete;
    EchoResponder& operator=(const EchoResponder&) = delete;

    /// Path of the side that the host opens.
    const QString& Path() const { return path_; }

private:
    void Run();

    int master_ = -1;
    int farSide_ = -1; // kept open, so that a host that leaves hangs nothing up
    int wake_ = -1;    // an event here ends the thread
    QString path_;
    std::thread thread_;
};

} // namespace bench
