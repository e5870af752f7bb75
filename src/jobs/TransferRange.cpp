#include "jobs/TransferRange.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "session/Globals.h"

namespace {
RangeRefusal Refused(const char16_t* message) {
    return {QString::fromUtf16(message), std::nullopt, 0};
}

RangeRefusal OutOfRange(const AddressRange& limits, int entry, qint16 resetValue) {
    const QString message =
        QStringLiteral("Entry is out of Range (%1-%2)").arg(limits.first).arg(limits.last);
    return {message, entry, resetValue};
}

bool IsWithin(double value, const AddressRange& limits) {
    return value >= limits.first && value <= limits.last;
}

qint16 EntryValue(const QString& text) {
    return ToInteger16(RoundToWhole(NumberValue(text)));
}
} // namespace

std::optional<RangeRefusal> CheckRange(int leftEntry, const QString& from, const QString& to,
                                       const AddressRange& limits) {
    const QString& left = leftEntry == RangeEntry::From ? from : to;
    if (!IsNumeric(left))
        return Refused(u"Only Numerical Data Allowed.");
    if (left.contains(u'.'))
        return Refused(u"Please Use Whole Numbers Only.");
    const double fromValue = NumberValue(from);
    const double toValue = NumberValue(to);
    if (!IsWithin(fromValue, limits))
        return OutOfRange(limits, RangeEntry::From, limits.first);
    if (!IsWithin(toValue, limits))
        return OutOfRange(limits, RangeEntry::To, limits.last);
    if (toValue < fromValue)
        return Refused(u"TO Can Not Be Greater Than FROM");
    return std::nullopt;
}

AddressRange ChosenRange(RangeChoice choice, const AddressRange& standard, const QString& from,
                         const QString& to, const AddressRange& before) {
    switch (choice) {
    case RangeChoice::Standard:
        return standard;
    case RangeChoice::Range:
        return {EntryValue(from), EntryValue(to)};
    case RangeChoice::Neither:
        break;
    }
    return before;
}

QString TransferCaption(qint16 mode, const QString& fileName) {
    const QString caption = mode == XferMode::Upload ? QStringLiteral("Target Board Data Upload")
                                                     : QStringLiteral("Target Board Data Download");
    return fileName.isEmpty() ? caption : caption + QStringLiteral(" - [") + fileName + u']';
}
