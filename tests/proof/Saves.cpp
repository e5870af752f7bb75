#include "Saves.h"

#include "AnsweredDialogs.h"
#include "base/ApplicationFolder.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "jobs/DataFile.h"
#include "link/PortSettings.h"
#include "link/RSComm.h"
#include "programset/ProgramTitle.h"
#include "programset/RecentList.h"
#include "statustable/TableFile.h"
#include "support/BoardPort.h"
#include "trending/TrendFile.h"
#include "trending/TrendOutput.h"
#include "trending/TrendSamples.h"

namespace {
constexpr int rowsOfAFile = 200;

QString Numbered(int content, int number) {
    return QString::number(content == 0 ? number : 100'000 + 7 * number);
}

void SaveSettings(const QString& folder, int content) {
    SavePortSettings(folder + QStringLiteral("/port/RSCOMM.set"),
                     {content == 0 ? 1 : 12, content == 0 ? 9600 : 19200});
}

void SaveRecentList(const QString& folder, int content) {
    RecentList list;
    for (int entry = 0; entry < RecentList::length; ++entry)
        list.UpdateRecentFile(QStringLiteral("/sets/") + Numbered(content, entry) +
                              QStringLiteral(".hdn"));
    list.Write(folder + QStringLiteral("/HD2000.dat"));
}

void SaveTitle(const QString& folder, int content) {
    WriteProgramTitle(folder + QStringLiteral("/PUMP.LTL"),
                      content == 0 ? QStringLiteral("Press 4") : QStringLiteral("Press 4 and 5"));
}

void SaveTable(const QString& folder, int content) {
    QStringList addresses;
    for (int row = 0; row < rowsOfAFile; ++row)
        addresses += u'B' + Numbered(content, row);
    WriteTableFile(folder + QStringLiteral("/PUMP.tbl"), qint16(content), addresses);
}

std::vector<TrendRow> Rows(int content) {
    std::vector<TrendRow> rows;
    for (int row = 0; row < rowsOfAFile; ++row)
        rows.push_back({Numbered(content, row), Numbered(content, 2 * row)});
    return rows;
}

void SaveTrend(const QString& folder, int content) {
    WriteTrendFile(folder + QStringLiteral("/PUMP.tdt"),
                   {QStringLiteral("B40"), content, Rows(content)});
}

void ExportSamples(const QString& folder, int content) {
    TrendSamples samples;
    samples.Load(Rows(content));
    ExportTrendCsv(folder + QStringLiteral("/PUMP.csv"), samples);
}

void SaveData(const QString& folder, int content) {
    QStringList pairs;
    for (int byte = 0; byte < rowsOfAFile; ++byte)
        pairs += content == 0 ? QStringLiteral("0A") : QStringLiteral("F5");
    WriteDataPairs(folder + QStringLiteral("/PUMP.LDT"), pairs);
}

// Configuration and channels of a limit switch board, as an upload writes them.
void SaveLimitSwitch(const QString& folder, int content) {
    for (const char* name : {"/PUMP.PCF", "/PUMP.CHL"}) {
        TextWriter file(folder + QLatin1String(name));
        for (int line = 0; line < rowsOfAFile; ++line)
            file.PrintText(Numbered(content, line));
        file.Close();
    }
}

// The three files of a program: ident, configuration and image of a board.
void UploadProgram(const QString& folder, int content) {
    constexpr int k2014 = 52;
    haldenboard::SimulatedBoard board(k2014);
    for (int address = 0; address < 65536; ++address)
        board.Poke(static_cast<std::uint16_t>(address),
                   static_cast<std::uint8_t>(content == 0 ? 0x41 : 0x42));
    haldenboard::Line line(board);
    line.KeepLog(false);
    VirtualClock clock;
    BoardPort port(clock, line);
    AnsweredDialogs dialogs;
    NoBusyDisplay busy;
    const ApplicationFolder application(folder);
    RSComm link(dialogs, clock, busy, application);
    link.OpenRSComm(port);
    link.UploadFile(folder + QStringLiteral("/PUMP.hdn"));
    link.SetInUploadMode(true);
    link.UploadProgram();
    if (dialogs.LastText() != QStringLiteral("Program Upload Complete!"))
        throw RunTimeError(ErrorNumber::DiskFull); // a box told the user what went wrong
}
} // namespace

std::string NameOf(const SaveOnDisk& save) {
    return std::string(save.save.name) + (save.namedTemporaries ? "Named" : "");
}

void PrintTo(const SaveOnDisk& save, std::ostream* out) {
    *out << NameOf(save);
}

std::vector<Save> AllSaves() {
    return {{"Settings", SaveSettings}, {"RecentList", SaveRecentList},
            {"Title", SaveTitle},       {"StatusTable", SaveTable},
            {"Trend", SaveTrend},       {"TrendExport", ExportSamples},
            {"Data", SaveData},         {"LimitSwitchUpload", SaveLimitSwitch},
            {"Upload", UploadProgram}};
}

std::vector<SaveOnDisk> AllSavesOnDisks() {
    std::vector<SaveOnDisk> saves;
    for (const Save& save : AllSaves())
        for (const bool named : {false, true})
            saves.push_back({save, named});
    return saves;
}
