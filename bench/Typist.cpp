#include "bench/Typist.h"

#include <algorithm>
#include <chrono>
#include <QCoreApplication>
#include <QInputDevice>
#include <QKeyEvent>
#include <random>
#include <stdexcept>
#include <utility>

namespace bench {

namespace {
constexpr int keys = 400;
constexpr int warmUpKeys = 4;
constexpr int shortestPauseMs = 20; // between a key shown and the next one
constexpr int longestPauseMs = 70;
constexpr auto longestWait = std::chrono::seconds(5);
} // namespace

// The keyboard is made by the first key event, which would be the thread's.
Typist::Typist(Place place, const Clock& clock, QEventLoop& events)
    : place_(std::move(place)), clock_(clock), events_(events) {
    QInputDevice::primaryKeyboard();
    thread_ = std::thread([this] { Type(); });
}

Typist::~Typist() {
    thread_.join();
}

void Typist::TakePaint() {
    const std::lock_guard lock(mutex_);
    if (!waiting_ || place_.text() != expected_)
        return;
    waiting_ = false;
    times_.push_back((clock_.MonotonicSeconds() - posted_) * 1000);
    shown_.notify_one();
}

double Typist::SlowestPercent() const {
    if (times_.size() != keys)
        throw std::runtime_error("a key does not show");
    std::vector<double> times(times_.begin() + warmUpKeys, times_.end());
    std::sort(times.begin(), times.end());
    return times[(times.size() * 99 + 99) / 100 - 1];
}

void Typist::Type() {
    std::mt19937 random(1);
    std::uniform_int_distribution<int> pause(shortestPauseMs * 1000, longestPauseMs * 1000);
    for (int i = 0; i < keys; ++i) {
        std::this_thread::sleep_for(std::chrono::microseconds(pause(random)));
        std::unique_lock lock(mutex_);
        Post(i % 2 == 0);
        if (!shown_.wait_for(lock, longestWait, [this] { return !waiting_; }))
            break;
    }
    QMetaObject::invokeMethod(&events_, &QEventLoop::quit, Qt::QueuedConnection);
}

void Typist::Post(bool character) {
    expected_ = character ? QString(place_.character) : QString();
    waiting_ = true;
    posted_ = clock_.MonotonicSeconds();
    QCoreApplication::postEvent(
        &place_.target, character ? new QKeyEvent(QEvent::KeyPress, place_.character.unicode(),
                                                  Qt::NoModifier, QString(place_.character))
                                  : new QKeyEvent(QEvent::KeyPress, Qt::Key_Backspace,
                                                  Qt::NoModifier, QStringLiteral("\b")));
}

} // namespace bench
