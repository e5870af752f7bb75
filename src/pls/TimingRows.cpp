#include "pls/TimingRows.h"

#include "base/NumberReader.h"
#include "link/MarkHex.h"
#include "pls/PLSLayout.h"
#include <algorithm>

namespace {
// Both columns of a placeholder.
QString ColumnText(Setpoint setpoint, qint16 position) {
    return setpoint.IsPlaceholder() ? QStringLiteral("****") : QString::number(position);
}

TimingRow SetpointRow(int channel, int index, Setpoint setpoint) {
    TimingRow row;
    row.channel = channel;
    row.name = index == 0 ? QStringLiteral("CH%1").arg(Dec2Octal(static_cast<qint16>(channel)))
                          : QStringLiteral("%1:").arg(index);
    row.on = ColumnText(setpoint, setpoint.on);
    row.off = ColumnText(setpoint, setpoint.off);
    return row;
}

// The setpoint that a row stands for; the last one for a row that tells no position.
int SetpointOfRow(const SetpointList& setpoints, const TimingRow& row) {
    const int last = std::max(static_cast<int>(setpoints.size()) - 1, 0);
    if (!IsNumeric(row.on))
        return last;
    const auto on = WholeNumberValue(row.on);
    const auto found = std::find_if(setpoints.begin(), setpoints.end(),
                                    [on](Setpoint setpoint) { return setpoint.on == on; });
    return found == setpoints.end() ? last : static_cast<int>(found - setpoints.begin());
}
} // namespace

std::vector<TimingRow> ChannelRows(const PLSRecord& record) {
    std::vector<TimingRow> rows;
    for (int channel = 0; channel < ChannelPlacesInUse(record); ++channel) {
        const SetpointList& setpoints = record.Chan[static_cast<std::size_t>(channel)];
        if (setpoints.isEmpty())
            break;
        for (int index = 0; index < setpoints.size(); ++index)
            rows.push_back(SetpointRow(channel, index, setpoints[index]));
        rows.push_back({QString(), QString(), QString(), channel});
    }
    return rows;
}

int RowsThatFit(int gridHeight, int rowHeight) {
    if (rowHeight <= 0)
        return 1;
    return std::max(gridHeight / rowHeight - 1, 1);
}

int GridRowCount(const std::vector<TimingRow>& rows, int fit) {
    return std::max(static_cast<int>(rows.size()) + 1, fit);
}

std::optional<ShownSetpoint> SelectGridRow(const PLSRecord& record,
                                           const std::vector<TimingRow>& rows, int gridRow) {
    if (gridRow < 1 || gridRow > static_cast<int>(rows.size()))
        return std::nullopt;
    const TimingRow& row = rows[static_cast<std::size_t>(gridRow) - 1];
    const SetpointList& setpoints = record.Chan[static_cast<std::size_t>(row.channel)];
    return ShowSetpoint(record, row.channel, SetpointOfRow(setpoints, row));
}
