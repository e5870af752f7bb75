#pragma once

#include "programset/PLSRecord.h"

struct PLSLayout;

/// The texts of the two files of a limit switch program set, built from a record. Lines inside a
/// text end in CR LF. The last line has no end: that comes from the one text write of the file.

/// Width of a channel's label in a .CHL file, in characters, as the suite's tools write it.
constexpr int chanLabelWidth = 21;
/// The line that ends a .CHL file.
inline const QString chlEndLine = QStringLiteral("%");

/// The line of the .PCF file. Raises Overflow (6) for a value that does not fit its columns: it
/// would shift all that follow, and the file would read back as another configuration.
QString BuildPCFText(const PLSRecord& record, const PLSLayout& layout);

/// The label in a header line of a .CHL file, as long as it stands there; empty for a line that
/// ends before its column.
QString ChannelLabel(const QString& chanHeader, const PLSLayout& layout);

/// Lines 1 and 2 of the .CHL file, scale factor and offset in divisions, each with its line end.
/// Numbers wider than the layout's digits are written whole: nobody reads these lines by columns.
QString CHLFirstLines(const PLSRecord& record, const PLSLayout& layout);
/// Header line of a channel, 0 to 63, with its line end. The label is that of `chanHeader`, filled
/// with blanks or cut to 21 characters. Raises nothing.
QString CHLHeaderLine(int channel, const QString& chanHeader, const PLSLayout& layout);
/// Lines of the setpoints of a channel in list order, each with its line end; placeholders are left
/// out. Raises Overflow (6) for a position that does not fit its digits.
QString CHLSetpointLines(const SetpointList& setpoints, const PLSLayout& layout);
/// The whole text of the .CHL file: first lines, each channel's header and setpoints, end line.
/// Raises as CHLSetpointLines.
QString BuildCHLText(const PLSRecord& record, const PLSLayout& layout);
