#pragma once

#include "programset/PLSRecord.h"
#include <array>
#include <QStringList>

struct PLSLayout;

/// What the offline viewer shows of a record, as texts.

/// The frame of the viewer that is shown, by its index.
enum class PLSViewFrame { None = -1, R6500Config = 0, StandardConfig = 1, Setpoints = 2 };

/// The frame for a file of this extension, in any letter case, and board index: .PCF shows the
/// configuration of the board's layout, .CHL the setpoints, any other none.
PLSViewFrame PLSViewFrameOf(const QString& extension, qint16 BoardIndex);

/// The rows of the two configuration frames; rows 0 to 10 are those of the R6500 layout.
constexpr int pcfRows = 22;
constexpr int firstSpeedCompRow = 3;
constexpr int firstStandardRow = 11;

// Both raise std::out_of_range for another row.

/// Caption of a row, 0 to 21.
QString PCFRowCaption(int row);
/// Value of a row, 0 to 21, in the unit that its caption or the value names. Rows of an option that
/// is off show its resting value whatever the record holds.
QString PCFRowValue(int row, const PLSRecord& record);

/// Cells of one row of the channel grid: channel, ON, OFF.
using ChannelGridRow = std::array<QString, 3>;

/// The rows of the channel grid below its heading: every channel with its label and its setpoints,
/// "****" where there is none, and an empty row behind each channel. A channel that is not in the
/// file has its row too.
QList<ChannelGridRow> ChannelGridRows(const PLSRecord& record, const PLSLayout& layout);

/// Caption of the viewer: base name of the set, " - ", name of the board.
QString PLSViewCaption(const QString& hdnFile, qint16 BoardIndex);
