#include "pls/PLSFileTexts.h"

#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "link/MarkHex.h"
#include "pls/PLSLayout.h"

namespace {
const QString lineEnd = QStringLiteral("\r\n");

// Digits of a value in fixed columns.
QString FixedDigits(qint16 value, int width) {
    const QString digits = PadNumber(value, static_cast<qint16>(width));
    if (value < 0 || digits.size() > width)
        throw RunTimeError(ErrorNumber::Overflow);
    return digits;
}
} // namespace

QString BuildPCFText(const PLSRecord& record, const PLSLayout& layout) {
    QString line;
    for (const PCFColumn& column : layout.columns)
        line += FixedDigits(column.field.Of(record), column.width);
    return line + QString::fromUtf16(layout.end);
}

QString ChannelLabel(const QString& chanHeader, const PLSLayout& layout) {
    return chanHeader.mid(layout.labelColumn - 1);
}

// These two lines are not read back by columns: an offset out of range is written as it is.
QString CHLFirstLines(const PLSRecord& record, const PLSLayout& layout) {
    const auto width = static_cast<qint16>(layout.setpointDigits);
    return u':' + PadNumber(record.ScaleFactor, width) + lineEnd + u':' +
           PadNumber(record.Offset, width) + lineEnd;
}

QString CHLHeaderLine(int channel, const QString& chanHeader, const PLSLayout& layout) {
    const qint16 octalName = Dec2Octal(ToInteger16(channel));
    return u':' + PadNumber(octalName, 2) + QString::fromUtf16(layout.headerConstant) +
           ChannelLabel(chanHeader, layout).leftJustified(chanLabelWidth, u' ', true) + lineEnd;
}

QString CHLSetpointLines(const SetpointList& setpoints, const PLSLayout& layout) {
    QString lines;
    for (const Setpoint& setpoint : setpoints)
        if (!setpoint.IsPlaceholder())
            lines += u'|' + FixedDigits(setpoint.on, layout.setpointDigits) +
                     FixedDigits(setpoint.off, layout.setpointDigits) + lineEnd;
    return lines;
}

QString BuildCHLText(const PLSRecord& record, const PLSLayout& layout) {
    QString text = CHLFirstLines(record, layout);
    for (int channel = 0; channel < ChannelPlacesInUse(record); ++channel)
        text += CHLHeaderLine(channel, record.ChanHeader[channel], layout) +
                CHLSetpointLines(record.Chan[channel], layout);
    return text + chlEndLine;
}
