#include "results/views/frmViewResults.h"

#include "results/KeptPrinter.h"
#include "results/ResultsText.h"
#include "session/Globals.h"
#include "support/gui/ModalView.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QClipboard>
#include <QFontInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace {
constexpr const char* boundsError = "Error Number = 9\r\n\r\nSubscript out of range";

class ViewResults : public testing::Test, public ResultsHost {
protected:
    void SetUp() override {
        Forget();
        Select("PUMP");
        view.resize(600, 400);
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        view.Activate();
    }
    void TearDown() override { Forget(); }
    void UnloadResults() override { view.close(); }

    static void Forget() {
        gHdnFile.clear();
        gResultsText.clear();
        gResultsShown.clear();
        gPrintContext = PrintContext::Browser;
        QGuiApplication::clipboard()->clear();
    }
    void Select(const char* set) { gHdnFile = folder.Path(QLatin1String(set) + ".hdn"); }
    QPlainTextEdit& Box() { return *PartOf<QPlainTextEdit>(view, "txtViewErrors"); }
    QString Text() { return Box().toPlainText(); }
    QPushButton& Button(const char* name) { return *PartOf<QPushButton>(view, name); }
    void Click(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
    void ShowErrors(const QByteArray& content) {
        folder.Write("PUMP.err", content);
        view.DisplayResults(ResultsMode::CompileErrors);
    }
    void ShowSearch(const char* set, const QByteArray& content) {
        Select(set);
        folder.Write(QLatin1String(set) + ".gbl", content);
        view.DisplayResults(ResultsMode::NewSearch);
    }
    void ExpectClear(int answer) {
        dialogs.ExpectBox("Do you wish to clear the contents of this page?",
                          MsgStyle::YesNoQuestion, "Clear Results", answer);
        Click("cmdClear");
    }
    void ExpectDisplayError(const char* text) {
        dialogs.ExpectBox(text, MsgStyle::Critical, "DisplayResults", MsgAnswer::Ok);
    }
    /// Sweeps over the characters of the first line with the left button held down.
    void SelectWithMouse(int first, int last) {
        const auto place = [this](int position) {
            QTextCursor cursor(Box().document());
            cursor.setPosition(position);
            return Box().cursorRect(cursor).center();
        };
        QWidget* sheet = Box().viewport();
        QTest::mousePress(sheet, Qt::LeftButton, Qt::NoModifier, place(first));
        QTest::mouseMove(sheet, place(last));
        QTest::mouseRelease(sheet, Qt::LeftButton, Qt::NoModifier, place(last));
    }
    void PressCopy() { QTest::keyClick(&Box(), Qt::Key_C, Qt::ControlModifier); }
    static QString Clip() { return QGuiApplication::clipboard()->text(); }

    TestFolder folder;
    ScriptedDialogs dialogs;
    VirtualClock clock;
    KeptPrinter printer;
    frmViewResults view{{dialogs, clock, printer, *this}};
};
} // namespace

TEST_F(ViewResults, ASecondSearchOnAnotherSetPutsTheNewResultsInFrontOfTheFirstEachUnderItsOwnTag) {
    ShowSearch("PUMP", "Search\r\nB100\r\nPUMP.lmn 12\r\n");
    ShowSearch("FAN", "Search\r\nW200\r\n");
    EXPECT_EQ(Text(), "-[FAN]-\nSearch\nW200\n-[PUMP]-\nSearch\nB100\nPUMP.lmn 12\n");
}

TEST_F(ViewResults, AnErrFileThatStaysEmptyForMoreThanASecondRaisesTheBoundsError) {
    const double start = clock.MonotonicSeconds();
    ExpectDisplayError(boundsError);
    ShowErrors("");
    EXPECT_GE(clock.MonotonicSeconds() - start, 1.0);
    EXPECT_EQ(Text(), QString());
}

TEST_F(ViewResults, ClearDoesNotAppearForCompileErrors) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    EXPECT_FALSE(Button("cmdClear").isVisible());
    ShowSearch("PUMP", "Search\r\nB100\r\n");
    EXPECT_TRUE(Button("cmdClear").isVisible());
    view.DisplayResults(ResultsMode::CompileErrors);
    EXPECT_FALSE(Button("cmdClear").isVisible());
    view.DisplayResults(ResultsMode::Stored);
    EXPECT_TRUE(Button("cmdClear").isVisible());
}

TEST_F(ViewResults, AfterClearStoredResultsAreAnEmptyPage) {
    ShowSearch("PUMP", "Search\r\nB100\r\n");
    ExpectClear(MsgAnswer::Yes);
    EXPECT_EQ(Text(), QString());
    view.DisplayResults(ResultsMode::Stored);
    EXPECT_EQ(Text(), QString());
    ShowSearch("FAN", "Search\r\nW200\r\n");
    EXPECT_EQ(Text(), "-[FAN]-\nSearch\nW200\n");
}

TEST_F(ViewResults, ClearThatIsNotConfirmedKeepsTheResults) {
    ShowSearch("PUMP", "Search\r\nB100\r\n");
    ExpectClear(MsgAnswer::No);
    EXPECT_EQ(Text(), "-[PUMP]-\nSearch\nB100\n");
    EXPECT_EQ(gResultsText, "-[PUMP]-\r\nSearch\r\nB100\r\n");
}

TEST_F(ViewResults, CompileErrorsReplaceWhatWasShownAndTheSearchResultsComeBack) {
    ShowSearch("PUMP", "Search\r\nB100\r\n");
    ShowErrors("Compiler\r\nPUMP\r\nERROR 5\r\n");
    EXPECT_EQ(Text(), "Compiler\nPUMP\nERROR 5\n");
    EXPECT_EQ(view.windowTitle(), "Compile Errors [PUMP]");
    view.DisplayResults(ResultsMode::Stored);
    EXPECT_EQ(Text(), "-[PUMP]-\nSearch\nB100\n");
    EXPECT_EQ(view.windowTitle(), "Search Results");
}

TEST_F(ViewResults, ResultsSurviveTheUnloadOfTheView) {
    ShowSearch("PUMP", "Search\r\nB100\r\n");
    Click("cmdOk");
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(Text(), QString());
    view.DisplayResults(ResultsMode::Stored);
    EXPECT_EQ(Text(), "-[PUMP]-\nSearch\nB100\n");
}

TEST_F(ViewResults, AFileThatFillsWhileItIsWaitedForIsShown) {
    folder.Write("PUMP.err", "");
    QTimer::singleShot(0, &view,
                       [&] { folder.Write("PUMP.err", "Compiler\r\nPUMP\r\nERROR 5\r\n"); });
    view.DisplayResults(ResultsMode::CompileErrors);
    EXPECT_EQ(Text(), "Compiler\nPUMP\nERROR 5\n");
}

TEST_F(ViewResults, ASetSelectedDuringTheWaitDoesNotMixItsNameIn) {
    Select("FAN");
    folder.Write("FAN.gbl", "");
    QTimer::singleShot(0, &view, [&] {
        folder.Write("FAN.gbl", "Search\r\nW200\r\n");
        Select("PUMP");
    });
    view.DisplayResults(ResultsMode::NewSearch);
    EXPECT_EQ(Text(), "-[FAN]-\nSearch\nW200\n");
}

TEST_F(ViewResults, AMissingOrCutFileIsReportedAndLeavesTheBoxEmpty) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    ExpectDisplayError(boundsError);
    Select("NONE");
    view.DisplayResults(ResultsMode::CompileErrors);
    EXPECT_EQ(Text(), QString());
    Select("PUMP");
    ExpectDisplayError(boundsError);
    ShowErrors("Compi");
    EXPECT_EQ(Text(), QString());
}

TEST_F(ViewResults, AFileThatIsNoFileIsReported) {
    folder.MakeFolder("PUMP.err"); // counts as one that does not exist
    ExpectDisplayError(boundsError);
    view.DisplayResults(ResultsMode::CompileErrors);
}

TEST_F(ViewResults, BinaryRubbishIsShown) {
    QByteArray rubbish;
    for (int byte = 0; byte < 4096; ++byte)
        rubbish += static_cast<char>(byte * 7);
    ShowErrors(rubbish);
    view.grab();
    EXPECT_GT(Box().blockCount(), 2);
}

TEST_F(ViewResults, AnEndlessLineIsShownInPiecesAndNothingIsLost) {
    const QByteArray endless(1000000, 'x');
    ShowErrors("Compiler\r\nPUMP\r\n" + endless + "\r\n");
    view.grab();
    EXPECT_EQ(Text().remove(u'\n'), "CompilerPUMP" + QString::fromLatin1(endless));
}

TEST_F(ViewResults, TheTextIsForReadingAndStartsAtItsTop) {
    QByteArray lines;
    for (int line = 0; line < 300; ++line)
        lines += "ERROR " + QByteArray::number(line) + "\r\n";
    ShowErrors(lines);
    QTest::keyClicks(&Box(), "abc");
    QTest::keyClick(&Box(), Qt::Key_Delete);
    EXPECT_EQ(Text(), QString::fromLatin1(lines).remove('\r'));
    EXPECT_EQ(Box().verticalScrollBar()->value(), 0);
    EXPECT_TRUE(Box().hasFocus());
    QTest::keyClick(&Box(), Qt::Key_PageDown);
    EXPECT_GT(Box().verticalScrollBar()->value(), 0);
}

TEST_F(ViewResults, ActivationMakesResultsWhatIsPrintedAndFocusesTheTextBox) {
    Button("cmdOk").setFocus();
    gPrintContext = PrintContext::Browser;
    view.Activate();
    EXPECT_EQ(gPrintContext, PrintContext::Results);
    EXPECT_TRUE(Box().hasFocus());
}

TEST_F(ViewResults, TheTextBoxFillsTheViewAboveTheButtons) {
    for (const QSize size : {QSize(600, 400), QSize(900, 700), QSize(320, 200)}) {
        view.resize(size);
        QCoreApplication::processEvents();
        EXPECT_GT(Box().width(), view.width() - 40);
        EXPECT_LT(Box().geometry().bottom(), Button("cmdOk").geometry().top());
        EXPECT_GT(Box().geometry().bottom(), Button("cmdOk").geometry().top() - 20);
    }
}

TEST_F(ViewResults, CopyTakesTheTextLastSelectedWithTheMouse) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    SelectWithMouse(0, 4);
    PressCopy();
    EXPECT_EQ(Clip(), "Comp");
    QTest::mouseClick(Box().viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(300, 200));
    ASSERT_FALSE(Box().textCursor().hasSelection());
    QGuiApplication::clipboard()->clear();
    PressCopy();
    EXPECT_EQ(Clip(), "Comp"); // the remembered one
}

TEST_F(ViewResults, CopyTakesTheTextLastSelectedWithTheKeysLinesPartedByLineEnds) {
    ShowErrors("ab\r\ncd\r\n");
    QTest::keyClick(&Box(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&Box(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&Box(), Qt::Key_Right, Qt::ShiftModifier);
    PressCopy();
    EXPECT_EQ(Clip().toStdString(), "ab\r\nc");
}

TEST_F(ViewResults, CopyWithoutASelectionLeavesTheClipboard) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    QGuiApplication::clipboard()->setText("before");
    PressCopy();
    EXPECT_EQ(Clip(), "before");
}

TEST_F(ViewResults, TheRightButtonRemembersNothing) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    SelectWithMouse(0, 4);
    Box().moveCursor(QTextCursor::End);
    Box().moveCursor(QTextCursor::Start, QTextCursor::KeepAnchor);
    QTest::mouseRelease(Box().viewport(), Qt::RightButton);
    Box().moveCursor(QTextCursor::Start);
    PressCopy();
    EXPECT_EQ(Clip(), "Comp");
}

TEST_F(ViewResults, AReloadedViewHasForgottenTheSelection) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    SelectWithMouse(0, 4);
    Click("cmdOk");
    view.show();
    view.DisplayResults(ResultsMode::CompileErrors);
    QGuiApplication::clipboard()->setText("before");
    PressCopy();
    EXPECT_EQ(Clip(), "before");
}

TEST_F(ViewResults, PrintsTheTextBoxOnThePrinterThatIsChosen) {
    ShowErrors("Compiler\r\nPUMP\r\nERROR 5\r\n");
    dialogs.ExpectPrinter({QStringLiteral("office"), QString(), 3});
    view.PrintResults();
    EXPECT_EQ(printer.choice.printerName, "office");
    EXPECT_EQ(printer.choice.copies, 3);
    EXPECT_EQ(printer.paper.ended, 1);
    ASSERT_EQ(printer.paper.pages.size(), 1u);
    const std::vector<DrawnText>& texts = printer.paper.pages[0].texts;
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[2].text, "ERROR 5");
    EXPECT_NEAR(texts[2].x, 720.0, 1e-6);
    EXPECT_EQ(texts[2].font.name, QFontInfo(Box().font()).family());
    EXPECT_EQ(texts[2].font.size, QFontInfo(Box().font()).pointSizeF());
}

TEST_F(ViewResults, PrintTakesBoldItalicAndUnderlineFromTheTextBox) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    QFont font = Box().font();
    font.setBold(true);
    font.setItalic(true);
    font.setUnderline(true);
    Box().setFont(font);
    dialogs.ExpectPrinter({QStringLiteral("office"), QString(), 1});
    view.PrintResults();
    const SurfaceFont printed = printer.paper.pages.at(0).texts.at(0).font;
    EXPECT_TRUE(printed.bold && printed.italic && printed.underline);
}

TEST_F(ViewResults, APrinterThatFailsIsReported) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    printer.paper.fails = true;
    dialogs.ExpectPrinter({QStringLiteral("office"), QString(), 1});
    dialogs.ExpectBox("Error Number = 57\r\n\r\nDevice I/O error", MsgStyle::Critical,
                      "Print Results", MsgAnswer::Ok);
    view.PrintResults();
}

TEST_F(ViewResults, CancelOfThePrintDialogPrintsNothingAndIsSilent) {
    ShowErrors("Compiler\r\nPUMP\r\n");
    dialogs.ExpectPrinterCancelled();
    view.PrintResults();
    EXPECT_EQ(printer.paper.ended, 0);
    EXPECT_TRUE(dialogs.Boxes().empty());
}
