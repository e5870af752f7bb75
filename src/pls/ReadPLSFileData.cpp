#include "pls/ReadPLSFileData.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "link/MarkHex.h"
#include "link/TargetBoards.h"
#include "pls/PLSBoards.h"
#include "pls/PLSLayout.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"
#include <algorithm>

namespace {
constexpr int firstChannelLine = 2;        // the lines before it hold scale and offset
constexpr qsizetype mostLines = 1'000'000; // of a .CHL file; all channels full take a seventh
constexpr Setpoint placeholder{};

qint16 NumberOf(QStringView digits) {
    return ToInteger16(RoundToWhole(NumberValue(digits)));
}

// Columns of a line, counted from 1; what lies behind its end is empty.
QStringView Columns(QStringView line, qsizetype first, qsizetype width) {
    const qsizetype start = std::min(first - 1, line.size());
    return line.mid(start, std::min(width, line.size() - start));
}

QStringView ColumnsToEnd(QStringView line, qsizetype first) {
    return Columns(line, first, line.size());
}

void ReadPCFFile(const PLSLayout& layout) {
    if (!FileSystem().FileExists(gPLS.PCFPath)) {
        for (const PCFColumn& it : layout.columns)
            it.field.Of(gPLS) = it.preset;
        return;
    }
    TextReader file(gPLS.PCFPath);
    if (!file.AtEnd())
        gPLS.PCFText = file.InputItem();
    for (const PCFColumn& it : layout.columns)
        it.field.Of(gPLS) = NumberOf(Columns(gPLS.PCFText, it.column, it.width));
}

// A line of the .CHL file. A comma does not end it, so that a label may hold one.
QString ReadCHLLine(TextReader& file) {
    const QString line = file.LineInput().trimmed();
    return line.startsWith(u'"') ? line.section(u'"', 1, 1) : line;
}

// Takes the lines of a .CHL file into gPLS one after the other.
class CHLLines {
public:
    explicit CHLLines(const PLSLayout& layout) : layout_(layout) {}

    void Take(const QString& line) {
        if (line.startsWith(u':'))
            OpenChannel(line);
        else if (line.startsWith(u'|'))
            AddSetpoint(line);
    }

private:
    void OpenChannel(const QString& line) {
        const qint16 channel = Octal2Dec(NumberOf(Columns(line, 2, 2)));
        if (channel < 0 || channel >= plsChannelPlaces)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        gPLS.ChanHeader[channel] = line;
        setpoints_ = &gPLS.Chan[channel];
        *setpoints_ = {placeholder};
        counter_ = 0;
    }

    void AddSetpoint(const QString& line) {
        if (!setpoints_)
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        const Setpoint setpoint = SetpointOf(line);
        if (counter_ == 0)
            setpoints_->first() = setpoint;
        else
            setpoints_->append(setpoint);
        counter_ = ToInteger16(counter_ + 1);
    }

    Setpoint SetpointOf(QStringView line) const {
        const int digits = layout_.setpointDigits;
        const QStringView off =
            layout_.r6500 ? Columns(line, 2 + digits, digits) : ColumnsToEnd(line, 2 + digits);
        return {.off = NumberOf(off), .on = NumberOf(Columns(line, 2, digits))};
    }

    const PLSLayout& layout_;
    SetpointList* setpoints_ = nullptr; // of the channel opened last
    qint16 counter_ = 0;
};

void ReadCHLFile(const PLSLayout& layout) {
    if (!FileSystem().FileExists(gPLS.CHLPath)) {
        for (int channel = 0; channel < gPLS.Channels; ++channel)
            gPLS.Chan[channel] = {placeholder};
        return;
    }
    QStringList lines;
    for (TextReader file(gPLS.CHLPath); !file.AtEnd();) {
        if (lines.size() == mostLines)
            throw RunTimeError(ErrorNumber::OutOfMemory);
        lines += ReadCHLLine(file);
    }
    CHLLines channels(layout);
    for (const QString& line : lines.mid(firstChannelLine))
        channels.Take(line);
}

// gPLS blank but for the paths. A set that names no board has none: it takes the presets.
void StartRecord(const QString& hdnFile, qint16 board) {
    PLSRecord blank;
    if (IsPLSBoard(board)) {
        blank.PCFPath = ChangeExtension(hdnFile, QStringLiteral("PCF"));
        blank.CHLPath = ChangeExtension(hdnFile, QStringLiteral("CHL"));
    }
    gPLS = blank;
}

bool ReadFiles(const QString& hdnFile) {
    const qint16 ownBoard = ProgramBoardIndex(hdnFile);
    StartRecord(hdnFile, ownBoard);
    const qint16 board = TimingBoardIndex(ownBoard);
    if (!IsPLSBoard(board))
        return false;
    const PLSLayout& layout = PLSLayoutOf(board);
    ReadPCFFile(layout);
    if (gPLS.Channels > plsChannelPlaces)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    ReadCHLFile(layout);
    return true;
}
} // namespace

bool ReadPLSFileData(const QString& HdnFile, Dialogs& dialogs) {
    try {
        return ReadFiles(HdnFile);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs, error, QStringLiteral("ReadPLSFileData()"), MsgStyle::Critical);
        return false;
    }
}
