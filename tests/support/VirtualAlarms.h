#pragma once

#include "base/Alarms.h"
#include "support/VirtualClock.h"
#include <vector>

/// Alarms that ring when the test lets virtual time pass, in the order in which they are due. One
/// that is set to 0 rings a millisecond later, so that time goes on whatever rings.
class VirtualAlarms final : public Alarms {
public:
    /// `clock` goes on with the alarms; it must outlive them.
    explicit VirtualAlarms(VirtualClock& clock) : clock_(clock) {}

    std::unique_ptr<Alarm> Make(std::function<void()> rings) override;
    qint64 Milliseconds() const override;

    /// Lets so many milliseconds pass and rings what comes due. Those that the clock has overtaken
    /// by itself ring at once.
    void Pass(int milliseconds);

private:
    class VirtualAlarm;

    VirtualClock& clock_;
    std::vector<VirtualAlarm*> alarms_;
};
