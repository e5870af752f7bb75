#include "pls/MachineMotion.h"

void MachineMotion::SpeedRead(int rpm) {
    const bool lastStopped = machineStopped_;
    machineStopped_ = rpm == 0;
    justStopped_ = machineStopped_ && !lastStopped;
    justStarted_ = !machineStopped_ && lastStopped;
}

namespace MachineTexts {
QString Speed(int rpm) {
    return QStringLiteral("RPM: %1").arg(rpm);
}

QString Position(const QString& reading) {
    return QStringLiteral("Position: ") + reading;
}

QString Offset(const QString& reading) {
    return QStringLiteral("Offset: ") + reading;
}

QString Scale(int scaleFactor) {
    return QStringLiteral("Scale: %1").arg(scaleFactor);
}
} // namespace MachineTexts
