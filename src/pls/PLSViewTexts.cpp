#include "pls/PLSViewTexts.h"

#include "base/FileSystem.h"
#include "link/MarkHex.h"
#include "link/TargetBoards.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"

namespace {
using R = PLSRecord;

// A row of a configuration frame that shows one number.
struct NumberRow {
    const char* caption;
    PLSField field;
    const char* before = "";
    const char* behind = "";
    qint16 option = 0;        // bit of OptionFlags that the row hangs on, 0 for none
    const char* resting = ""; // shown while that option is off
};

constexpr qint16 brake = PLSOption::BrakeWearCompensation;
constexpr qint16 speed = PLSOption::SpeedWindow;
constexpr int brakeRow = 14;
constexpr int windowRow = 18;
constexpr int speedRow = 19;

// Rows 14, 18 and 19 say more than one number: their values are made in PCFRowValue.
constexpr std::array<NumberRow, pcfRows> rows{{
    {"Number of PLS Channels:", {&R::Channels}},
    {"Scale Factor:", {&R::ScaleFactor}},
    {"PLS Program:", {&R::PLSProgram}},
    {"CH00 (msec):", SpeedCompField(0)},
    {"CH01 (msec):", SpeedCompField(1)},
    {"CH02 (msec):", SpeedCompField(2)},
    {"CH03 (msec):", SpeedCompField(3)},
    {"CH04 (msec):", SpeedCompField(4)},
    {"CH05 (msec):", SpeedCompField(5)},
    {"CH06 (msec):", SpeedCompField(6)},
    {"CH07 (msec):", SpeedCompField(7)},
    {"Number of PLS Channels:", {&R::Channels}},
    {"Scale Factor:", {&R::ScaleFactor}},
    {"Remote Display Strobe Preset (2.5msec TB):", {&R::StrobePreset}},
    {"CH00 Brake Wear Compnesation Enabled (y/n):", {&R::OptionFlags}, "", "", brake, "No"},
    {"Desired Stop Locaton:", {&R::StopLocation}, "", "", brake, "000"},
    {"Allowed Stopping Error:", {&R::StopError}, "+-", "", brake, "+-0"},
    {"CH00 Timing Signal Width:", {&R::SignalWidth}, "", "", brake, "1"},
    {"Compensation Enable Window:", {&R::WindowOn}, "", "", brake, "000-000"},
    {"CH17 Speed Window Enabled (y/n):", {&R::OptionFlags}, "", "", speed, "No"},
    {"Low Speed Threshold:", {&R::LowThreshold}, "", " RPM", speed, "0000 RPM"},
    {"High Speed Threshold:", {&R::HighThreshold}, "", " RPM", speed, "0000 RPM"},
}};

const QString noPosition = QStringLiteral("****");

QString ChannelHeading(int channel, const PLSRecord& record, const PLSLayout& layout) {
    return QStringLiteral(" CH%1 - ").arg(Dec2Octal(static_cast<qint16>(channel))) +
           ChannelLabel(record.ChanHeader[channel], layout);
}

ChannelGridRow SetpointRow(const QString& heading, const Setpoint& setpoint) {
    if (setpoint.IsPlaceholder())
        return {heading, noPosition, noPosition};
    return {heading, QString::number(setpoint.on), QString::number(setpoint.off)};
}
} // namespace

PLSViewFrame PLSViewFrameOf(const QString& extension, qint16 BoardIndex) {
    if (extension.compare(QLatin1String("CHL"), Qt::CaseInsensitive) == 0)
        return PLSViewFrame::Setpoints;
    if (extension.compare(QLatin1String("PCF"), Qt::CaseInsensitive) != 0)
        return PLSViewFrame::None;
    return PLSLayoutOf(BoardIndex).r6500 ? PLSViewFrame::R6500Config : PLSViewFrame::StandardConfig;
}

QString PCFRowCaption(int row) {
    return QLatin1String(rows.at(row).caption);
}

QString PCFRowValue(int row, const PLSRecord& record) {
    const NumberRow& it = rows.at(row);
    if (it.option != 0 && !(record.OptionFlags & it.option))
        return QLatin1String(it.resting);
    if (row == brakeRow || row == speedRow)
        return QStringLiteral("Yes");
    if (row == windowRow)
        return QStringLiteral("%1-%2").arg(record.WindowOn).arg(record.WindowOff);
    return QLatin1String(it.before) + QString::number(it.field.Of(record)) +
           QLatin1String(it.behind);
}

QList<ChannelGridRow> ChannelGridRows(const PLSRecord& record, const PLSLayout& layout) {
    QList<ChannelGridRow> grid;
    for (int channel = 0; channel < ChannelPlacesInUse(record); ++channel) {
        QString heading = ChannelHeading(channel, record, layout);
        const SetpointList& setpoints = record.Chan[channel];
        if (setpoints.isEmpty())
            grid += SetpointRow(heading, {});
        for (const Setpoint& setpoint : setpoints)
            grid += SetpointRow(std::exchange(heading, QString()), setpoint);
        grid += ChannelGridRow();
    }
    return grid;
}

QString PLSViewCaption(const QString& hdnFile, qint16 BoardIndex) {
    return FileSystem().GetBaseName(hdnFile) + QStringLiteral(" - ") + TargetboardName(BoardIndex);
}
