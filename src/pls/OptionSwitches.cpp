#include "pls/OptionSwitches.h"

#include "pls/ConfigCoupling.h"
#include "pls/PLSEntries.h"

bool IsSwitchedOn(const PLSRecord& record, const OptionSwitch& option) {
    return (record.OptionFlags & option.bit) != 0;
}

int ClearedValue(int entry, int scaleFactor) {
    if (entry == PLSEntryIndex::WindowOff)
        return HighestPosition(scaleFactor);
    return ConfigEntry(entry).limits.min;
}

void SwitchClicked(PLSRecord& record, const OptionSwitch& option, bool checked,
                   bool firstPassOnline) {
    if (!firstPassOnline)
        return;
    if (checked) {
        record.OptionFlags = static_cast<qint16>(record.OptionFlags | option.bit);
        return;
    }
    record.OptionFlags = static_cast<qint16>(record.OptionFlags & ~option.bit);
    for (int entry = option.firstEntry; entry <= option.lastEntry; ++entry) {
        const int value = ClearedValue(entry, record.ScaleFactor);
        StoreConfigEntry(record, entry, static_cast<qint16>(value));
    }
}
