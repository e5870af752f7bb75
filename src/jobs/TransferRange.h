#pragma once

#include "jobs/DataImage.h"
#include <optional>
#include <QString>

/// The two entries of a transfer's range: index 0 from, index 1 to.
namespace RangeEntry {
constexpr int From = 0;
constexpr int To = 1;
} // namespace RangeEntry

/// Why an entry is not taken.
struct RangeRefusal {
    QString message;               ///< text of the box, whose title is "Entry Error"
    std::optional<int> resetEntry; ///< the entry that goes back to its end of the range
    qint16 resetValue = 0;         ///< byte address that it goes back to
};

/// Looks at the entries when the one of this index (RangeEntry) is left: it must be a whole number,
/// both must lie within `limits` (byte addresses), and "to" must not be below "from", in this
/// order. Nothing if all is well. Any text may be given; raises nothing.
std::optional<RangeRefusal> CheckRange(int leftEntry, const QString& from, const QString& to,
                                       const AddressRange& limits);

/// Which of the two options of a transfer is chosen.
enum class RangeChoice { Neither, Standard, Range };

/// The range that a transfer moves: the standard one, that of the entries (which must have passed
/// CheckRange), or `before` if neither option was chosen.
AddressRange ChosenRange(RangeChoice choice, const AddressRange& standard, const QString& from,
                         const QString& to, const AddressRange& before);

/// "Target Board Data Download - [A.hdn]": `mode` is an XferMode, `fileName` empty if the set's
/// file does not exist.
QString TransferCaption(qint16 mode, const QString& fileName);
