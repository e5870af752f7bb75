#pragma once

#include "programset/PLSRecord.h"
#include <span>

/// Limit switch boards come in two layouts that differ in channels, configuration fields, file
/// columns and the tables exchanged with the board. All that differs stands here as data; readers,
/// builders and views walk these tables.

/// A 16-bit configuration value of PLSRecord: a member, or one of the speed compensations.
struct PLSField {
    qint16 PLSRecord::*member = nullptr; ///< the member, null for a speed compensation
    int speedComp = 0;                   ///< index into SpeedComp, 0 to 7, where `member` is null

    bool operator==(const PLSField&) const = default;
    /// The value itself, to read or to write. Raises std::out_of_range for a `speedComp` beyond 7.
    qint16& Of(PLSRecord& record) const;
    /// Its value in `record`; raises likewise.
    qint16 Of(const PLSRecord& record) const;
};

/// The speed compensation (msec) of a channel, 0 to 7, as a field.
constexpr PLSField SpeedCompField(int channel) {
    return {nullptr, channel};
}

/// One field of the line of a .PCF file. Columns and widths are those that the suite's tools write;
/// the bounds are what a board takes: a byte, or a position on its longest cycle.
struct PCFColumn {
    PLSField field;
    int column;    ///< first column, counted from 1
    int width;     ///< digits
    qint16 min;    ///< smallest and largest value that means anything; positions on the cycle are
    qint16 max;    ///< limited further by the scale factor
    qint16 preset; ///< value without a .PCF file
};

/// One value of a table exchanged with the board: a byte, or a word with its low byte first. The
/// positions are the board's own and differ between the table sent and the table read.
struct PLSTableEntry {
    PLSField field;
    int position; ///< of the byte, or of the low byte of a word, counted from 0
    bool word = false;
};

/// One layout of limit switch boards.
struct PLSLayout {
    bool r6500;                                 ///< which of the two it is
    int setpointDigits;                         ///< of a position in the .CHL file
    const char16_t* headerConstant;             ///< behind the octal name in a .CHL header line
    int labelColumn;                            ///< where the label starts there, counted from 1
    std::span<const qint16> channelCounts;      ///< numbers of channels that boards have
    std::span<const PCFColumn> columns;         ///< the .PCF line in order, without its end
    std::span<const PLSTableEntry> sent;        ///< configuration table sent to the board
    std::span<const PLSTableEntry> received;    ///< configuration table read from the board
    const char16_t* end = u"0000000000000000%"; ///< what ends the .PCF line
};

extern const PLSLayout standardLayout; ///< of K2041, R6020, R6021, R6040 and R6041
extern const PLSLayout r6500Layout;    ///< of R6500

/// The layout of a board index: 69 alone is the R6500 layout, every other index, 68 too, the
/// standard layout. Callers that take 68 as 69 ask with TimingBoardIndex (PLSBoards.h).
const PLSLayout& PLSLayoutOf(qint16 BoardIndex);

/// Column of a field in the .PCF line, with its bounds and preset; null if the layout has no such
/// field.
const PCFColumn* FindColumn(const PLSLayout& layout, PLSField field);

/// How many places of `Chan` the record's channels take: `Channels` held within 0 to 64, since a
/// board may answer any number. Every loop over channels ends here.
int ChannelPlacesInUse(const PLSRecord& record);
