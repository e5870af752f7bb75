#pragma once

#include "pls/ChannelEntry.h"
#include <optional>
#include <QString>
#include <vector>

/// The rows of fgPLSChannels and what selecting one of them shows.

/// One row below the heading.
struct TimingRow {
    QString name;    ///< column 0: "CH" + octal name, "1:" for its second setpoint, "" behind it
    QString on;      ///< column 1: ON, "****" for the placeholder, "" behind the channel
    QString off;     ///< column 2
    int channel = 0; ///< binary number: the entry of the row channels list

    bool operator==(const TimingRow&) const = default;
};

/// Rows of all channels up to the first Empty one: a row for each setpoint, then a blank row.
std::vector<TimingRow> ChannelRows(const PLSRecord& record);

/// Rows that a grid shows at once: the integer part of its height by that of row 1 (pixels), less
/// 1. Never under 1, the heading.
int RowsThatFit(int gridHeight, int rowHeight);
/// Rows of the grid, heading included: at least `fit`.
int GridRowCount(const std::vector<TimingRow>& rows, int fit);

/// What the entries show when grid row `gridRow` (0 is the heading) is selected: the first setpoint
/// of the row's channel whose ON is the number in column 1; the last one where column 1 holds no
/// number. Nothing for the heading and for the empty rows that fill the grid.
std::optional<ShownSetpoint> SelectGridRow(const PLSRecord& record,
                                           const std::vector<TimingRow>& rows, int gridRow);
