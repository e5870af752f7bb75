#pragma once

#include <functional>
#include <memory>
#include <QtGlobal>

/// Rings once, some time after it was set, from the event loop: the seam for gathering and rest
/// times, so that tests let them pass without waiting.
class Alarm {
public:
    virtual ~Alarm();
    /// Rings in `milliseconds` (0 or more) from now, instead of when it would have rung before.
    /// With 0 it rings in the next turn of the event loop, never inside this call.
    virtual void Set(int milliseconds) = 0;
    /// Does not ring until it is set again.
    virtual void Stop() = 0;
    /// True from Set until it rings or is stopped.
    virtual bool IsSet() const = 0;
};

/// Where alarms come from.
class Alarms {
public:
    virtual ~Alarms();
    /// A new alarm, not set, which calls `rings`. It must not outlive what `rings` uses.
    virtual std::unique_ptr<Alarm> Make(std::function<void()> rings) = 0;
    /// Milliseconds since an arbitrary moment, in the time the alarms go by; never goes back.
    virtual qint64 Milliseconds() const = 0;

    /// The alarms of the event loop, in the time of the machine.
    static Alarms& System();
};
