#include "VirtualAlarms.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

class VirtualAlarms::VirtualAlarm final : public Alarm {
public:
    VirtualAlarm(VirtualAlarms& all, std::function<void()> rings)
        : all_(all), rings_(std::move(rings)) {
        all_.alarms_.push_back(this);
    }
    ~VirtualAlarm() override { std::erase(all_.alarms_, this); }
    VirtualAlarm(const VirtualAlarm&) = delete;
    VirtualAlarm& operator=(const VirtualAlarm&) = delete;

    void Set(int milliseconds) override { due = all_.Milliseconds() + std::max(milliseconds, 1); }
    void Stop() override { due.reset(); }
    bool IsSet() const override { return due.has_value(); }
    void Ring() {
        due.reset();
        rings_();
    }

    std::optional<qint64> due;

private:
    VirtualAlarms& all_;
    std::function<void()> rings_;
};

std::unique_ptr<Alarm> VirtualAlarms::Make(std::function<void()> rings) {
    return std::make_unique<VirtualAlarm>(*this, std::move(rings));
}

qint64 VirtualAlarms::Milliseconds() const {
    return std::llround(clock_.MonotonicSeconds() * 1000);
}

void VirtualAlarms::Pass(int milliseconds) {
    const qint64 end = Milliseconds() + milliseconds;
    for (;;) {
        VirtualAlarm* next = nullptr;
        for (VirtualAlarm* alarm : alarms_)
            if (alarm->due && *alarm->due <= end && (!next || *alarm->due < *next->due))
                next = alarm;
        if (!next)
            break;
        clock_.AdvanceTo(static_cast<double>(*next->due) / 1000);
        next->Ring();
    }
    clock_.AdvanceTo(static_cast<double>(end) / 1000);
}
