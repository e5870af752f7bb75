#include "pls/PLSConfigTable.h"

#include "base/RunTimeError.h"
#include "pls/PLSBoards.h"
#include "pls/PLSLayout.h"
#include "session/Globals.h"
#include <algorithm>

namespace {
constexpr int byteValues = 256;
constexpr int r6041ChannelsPosition = 5;

void PutEntry(PLSSentTable& table, const PLSTableEntry& entry, qint16 value) {
    if (!entry.word) {
        table.at(entry.position) = value;
        return;
    }
    const auto bits = static_cast<quint16>(value);
    table.at(entry.position) = bits % byteValues;
    table.at(entry.position + 1) = bits / byteValues;
}

qint16 TakeEntry(std::span<const qint16> table, const PLSTableEntry& entry) {
    const qint16 low = table[entry.position];
    return entry.word ? ToInteger16(low + qint64(byteValues) * table[entry.position + 1]) : low;
}

bool FieldChanged(PLSField field) {
    return field.Of(gPLS) != field.Of(gPLSSnapshot);
}

bool LayoutChanged(const PLSLayout& layout) {
    return std::any_of(layout.columns.begin(), layout.columns.end(),
                       [](const PCFColumn& column) { return FieldChanged(column.field); });
}
} // namespace

PLSSentTable BuildPLSConfigArray(qint16 BoardIndex) {
    PLSSentTable table{};
    for (const PLSTableEntry& entry : PLSLayoutOf(BoardIndex).sent)
        PutEntry(table, entry, entry.field.Of(std::as_const(gPLS)));
    return table;
}

void ApplyPLSConfig(std::span<const qint16> Table, qint16 BoardIndex) {
    if (Table.size() < plsReadTableSize)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const PLSLayout& layout = PLSLayoutOf(BoardIndex);
    PLSRecord record = gPLS;
    for (const PLSTableEntry& entry : layout.received)
        entry.field.Of(record) = TakeEntry(Table, entry);
    if (BoardIndex == PLSBoardIndex::R6041)
        record.Channels = Table[r6041ChannelsPosition];
    else if (!layout.r6500)
        record.Channels = layout.channelCounts.front();
    gPLS = record;
}

// The columns of the two layouts name together every field of the configuration.
bool ConfigChanged() {
    return LayoutChanged(standardLayout) || LayoutChanged(r6500Layout);
}
