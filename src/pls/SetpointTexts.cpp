#include "pls/SetpointTexts.h"

namespace SetpointTexts {
QString UnableToProgramSetpoint(int channelName) {
    return QStringLiteral("Unable to Successfully Program Setpoint for Channel CH%1.")
        .arg(channelName);
}

QString UnableToProgramPulseTrain(int channelName) {
    return QStringLiteral("Unable to Successfully Program Pulse Train for Channel CH%1.")
        .arg(channelName);
}

QString ClearChannelQuestion(int channelName) {
    const QString zero = channelName <= 7 ? QStringLiteral("0") : QString();
    return QStringLiteral("You are about to Clear Channel CH%1%2.\r\n\r\nDo you wish to continue?")
        .arg(zero)
        .arg(channelName);
}
} // namespace SetpointTexts
