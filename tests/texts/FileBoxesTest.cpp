#include "app/WholeProgram.h"
#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include <QAction>

// Boxes of the whole program that no other test shows with all of their text.

namespace {
class FileBoxes : public WholeProgram {
protected:
    void Trigger(const char* entry) { Entry(QLatin1String(entry))->trigger(); }
    void ExpectReport(const QString& text, const char* title, int style = MsgStyle::Critical) {
        dialogs_.ExpectBox(text, style, QLatin1String(title), MsgAnswer::Ok);
    }
    /// Chooses a set with this board for the status table.
    void SelectTableProgram(const QByteArray& board) {
        WriteSetFile(QStringLiteral("OTHER.hdn"), board + "\r\n");
        dialogs_.ExpectOpen(SetPath(QStringLiteral("OTHER.hdn")));
        Trigger("mnuStatusTableItem(4)");
    }
};
} // namespace

TEST_F(FileBoxes, OfADownloadThatRaises) {
    WriteSetFile(QStringLiteral("UNIT.rev"), "PUMP1:301\r\n");
    Window().Views().frmDownloadProg = [](qint16) {
        throw RunTimeError(ErrorNumber::DeviceIOError);
    };
    ExpectReport(QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error"), "Download File");
    Press("Program");
}

TEST_F(FileBoxes, OfLimitSwitchBoardsInTheStatusTable) {
    const std::pair<const char*, const char*> boards[] = {
        {"7", "Unable to View NicNames or Data for Target Board K2041."},
        {">", "Unable to View NicNames or Data for Target Board R6020(PLS)."},
        {"?", "Unable to View NicNames or Data for Target Board R6040."},
        {"@", "Unable to View NicNames or Data for Target Board R6041."},
        {"C", "Unable to View NicNames or Data for Target Board R6021(PLS)."},
        {"E", "Unable to View NicNames or Data for Target Board R6500(PLS)."}};
    for (const auto& [board, text] : boards) {
        ExpectReport(QLatin1String(text), "Target Board Error", MsgStyle::Information);
        SelectTableProgram(board);
    }
}

TEST_F(FileBoxes, OfASetTooLongToBeReadInTheStatusTable) {
    constexpr int tooLong = 17 * 1024 * 1024; // bytes
    ExpectReport(QStringLiteral("Error Number = 7\r\n\r\nOut of memory"), "Status Table Open",
                 MsgStyle::Information);
    SelectTableProgram(QByteArray(tooLong, '3'));
}

TEST_F(FileBoxes, OfASetThatLosesItsBoardBeforeTheTimingView) {
    WriteSetFile(QStringLiteral("UNIT.hdn"), "\r\n");
    ExpectReport(QStringLiteral("Error Number = 5\r\n\r\nInvalid procedure call or argument"),
                 "PLS Timing");
    Trigger("mnuToolsPLSProgramming");
}

TEST_F(FileBoxes, OfAChannelFileThatNamesNoChannel) {
    WriteSetFile(QStringLiteral("CAM.hdn"), "7\r\n");
    WriteSetFile(QStringLiteral("CAM.CHL"), ":360\r\n:000\r\n:991:00:00:00\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet(QStringLiteral("CAM.hdn"));
    ExpectReport(QStringLiteral("Error Number = 9\r\n\r\nSubscript out of range"),
                 "ReadPLSFileData()");
    WhenUp("frmPLSView", [](QWidget& view) { ClickButton(view, "cmdOk"); });
    DoubleClickNode(QStringLiteral("CHANNEL (.CHL)"));
}

TEST_F(FileBoxes, OfTrendFilesThatCannotBeUsed) {
    Trigger("mnuToolsTrending");
    dialogs_.ExpectOpen(WriteSetFile(QStringLiteral("CUT.tdt"), "B50\r\n"));
    ExpectReport(QStringLiteral("Error Number = 62\r\n\r\nInput past end of file"),
                 "Trend Sample Open");
    Trigger("mnuTrendingPopupOpen");
    dialogs_.ExpectSave(SetPath(QStringLiteral("none/a.tdt")));
    ExpectReport(QStringLiteral("Error Number = 76\r\n\r\nPath not found"), "Trend Sample Save");
    Trigger("mnuTrendingPopupSave");
    dialogs_.ExpectSave(SetPath(QStringLiteral("none/a.csv")));
    ExpectReport(QStringLiteral("Error Number = 76\r\n\r\nPath not found"), "Export CSV");
    Trigger("mnuTrendingPopupExport");
}

TEST_F(FileBoxes, OfATrendThatCannotBePrinted) {
    Trigger("mnuToolsTrending");
    dialogs_.ExpectPrinter({QStringLiteral("printer that was taken away"), QString(), 1});
    ExpectReport(QStringLiteral("Error Number = 68\r\n\r\nDevice unavailable"), "Print -Trending");
    WhenUp("frmTrendingPrint", [](QWidget& view) {
        ClickButton(view, "chkGraph");
        ClickButton(view, "cmdSetup");
        ClickButton(view, "cmdOk");
    });
    Trigger("mnuTrendingPopupPrint");
}
