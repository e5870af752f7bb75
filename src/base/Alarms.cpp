#include "base/Alarms.h"

#include <QElapsedTimer>
#include <QTimer>
#include <utility>

Alarm::~Alarm() = default;
Alarms::~Alarms() = default;

namespace {
class SystemAlarm final : public Alarm {
public:
    explicit SystemAlarm(std::function<void()> rings) : rings_(std::move(rings)) {
        timer_.setSingleShot(true);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { rings_(); });
    }
    void Set(int milliseconds) override { timer_.start(milliseconds); }
    void Stop() override { timer_.stop(); }
    bool IsSet() const override { return timer_.isActive(); }

private:
    std::function<void()> rings_;
    QTimer timer_;
};

class SystemAlarms final : public Alarms {
public:
    SystemAlarms() { sinceStart_.start(); }
    std::unique_ptr<Alarm> Make(std::function<void()> rings) override {
        return std::make_unique<SystemAlarm>(std::move(rings));
    }
    qint64 Milliseconds() const override { return sinceStart_.elapsed(); }

private:
    QElapsedTimer sinceStart_;
};
} // namespace

Alarms& Alarms::System() {
    static SystemAlarms alarms;
    return alarms;
}
