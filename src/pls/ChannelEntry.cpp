#include "pls/ChannelEntry.h"

#include "link/MarkHex.h"

ShownSetpoint ShowSetpoint(const PLSRecord& record, int channel, int index) {
    ShownSetpoint shown{channel, index, 0, std::nullopt};
    if (channel < 0 || channel >= plsChannelPlaces)
        return shown;
    const SetpointList& setpoints = record.Chan[static_cast<std::size_t>(channel)];
    if (setpoints.isEmpty())
        return shown;
    shown.lastIndex = static_cast<int>(setpoints.size()) - 1;
    if (index >= 0 && index <= shown.lastIndex)
        shown.setpoint = setpoints[index];
    return shown;
}

int OctalStep(int name) {
    switch (name % 10) {
    case 8:
        return name + 2;
    case 9:
        return name - 2;
    default:
        return name;
    }
}

ChannelEntered ValidateChannelEntry(const PLSRecord& record, int entered) {
    const int channel = Octal2Dec(static_cast<qint16>(entered));
    return {OctalStep(entered), ShowSetpoint(record, channel, 0)};
}
