#pragma once

#include <QString>

/// What the speed readings say of the machine. A new or cleared one takes the machine for moving:
/// a first reading of 0 counts as just stopped.
class MachineMotion {
public:
    /// The view goes online or offline: nothing is known.
    void Clear() { *this = MachineMotion(); }
    /// A speed was read, in RPM. Only for a reading that the board answered: a failed one gives 0,
    /// and a machine taken for stopped unlocks its configuration.
    void SpeedRead(int rpm);

    /// The last speed read was 0.
    bool MachineStopped() const { return machineStopped_; }
    /// It was above 0 at the reading before, and is 0 now.
    bool JustStopped() const { return justStopped_; }
    /// It was 0 at the reading before, and is above 0 now.
    bool JustStarted() const { return justStarted_; }

private:
    bool machineStopped_ = false;
    bool justStopped_ = false;
    bool justStarted_ = false;
};

/// Texts of the four panels of sbrMachineTiming.
namespace MachineTexts {
/// Highest speed, in RPM, at which the position is read: above it a reading is old when it is
/// shown.
constexpr int fastestPosition = 50;
/// Whether the position is read at this speed.
inline bool ReadsPosition(int rpm) {
    return rpm <= fastestPosition;
}

QString Speed(int rpm);                   ///< "RPM: 12"
QString Position(const QString& reading); ///< "Position: " and the text as read
QString Offset(const QString& reading);   ///< "Offset: " and the text as read
QString Scale(int scaleFactor);           ///< "Scale: 360"

inline constexpr char fastPosition[] = "Position: 888"; ///< above fastestPosition
inline constexpr char noSpeed[] = "RPM: -";             ///< offline, as those below
inline constexpr char noPosition[] = "Position: -";
inline constexpr char noOffset[] = "Offset: -";
inline constexpr char noScale[] = "Scale: -";
} // namespace MachineTexts
