#pragma once

#include "base/Clock.h"
#include <condition_variable>
#include <functional>
#include <mutex>
#include <QEventLoop>
#include <QString>
#include <thread>
#include <vector>

namespace bench {

/// A thread that types a character into a widget and takes it back, again and again at any moment
/// of what the program does, each key when the one before is on the screen. It ends the event loop
/// when it is done.
class Typist {
public:
    /// What is typed into, and where the text then stands.
    struct Place {
        QObject& target;
        QChar character;
        std::function<QString()> text; ///< empty before the first key
    };

    Typist(Place place, const Clock& clock, QEventLoop& events);
    ~Typist();
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    /// To be called when the place was painted.
    void TakePaint();
    /// Once the loop has ended: 99th percentile of the milliseconds from a key to the screen.
    /// Raises std::runtime_error when a key did not show.
    double SlowestPercent() const;

private:
    void Type();
    void Post(bool character);

    const Place place_;
    const Clock& clock_;
    QEventLoop& events_;
    std::mutex mutex_;
    std::condition_variable shown_;
    bool waiting_ = false; // a key was posted and is not on the screen
    QString expected_;     // text of the place after it
    double posted_ = 0;    // seconds
    std::vector<double> times_;
    std::thread thread_;
};

} // namespace bench
