#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "controls/entry/EntryUpDown.h"
#include "jobs/JobRunner.h"
#include "jobs/views/frmDataXfr.h"
#include "session/Globals.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <vector>

namespace {
struct JobRun {
    qint16 code, from, to;
    bool dialogHidden;
    bool operator==(const JobRun&) const = default;
};

class RecordingRunner final : public JobRunner {
public:
    void RunWaitJob(qint16 JobCode) override {
        runs.push_back({JobCode, gXferFrom, gXferTo, !dialog->isVisible()});
    }
    QWidget* dialog = nullptr;
    std::vector<JobRun> runs;
};

class DataXfr : public testing::Test {
protected:
    DataXfr() {
        gXferBoard = 51;
        gXferMode = XferMode::Download;
        gXferFrom = gXferTo = 0;
        gHdnFile.clear();
    }

    void Open() {
        view = std::make_unique<frmDataXfr>(dialogs, files, runner);
        runner.dialog = view.get();
        view->show();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }
    template <class T>
    T* Child(const char* name) const {
        return view->findChild<T*>(QString::fromLatin1(name));
    }
    // What a handler has put off may put off more.
    static void Settle() {
        for (int turn = 0; turn < 4; ++turn)
            QApplication::processEvents();
    }
    void Click(const char* name) const {
        QTest::mouseClick(Child<QWidget>(name), Qt::LeftButton);
        Settle();
    }
    void ChooseRange() const {
        // The hit area of an option is its mark and text, not the whole row.
        auto* option = Child<QRadioButton>("optRange(1)");
        QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option->height() / 2));
        Settle();
    }
    void ChooseStandard() const {
        auto* option = Child<QRadioButton>("optRange(0)");
        QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option->height() / 2));
        Settle();
    }
    // Types over what stands in the entry; the entry takes the focus first.
    void Type(const char* name, const char* text) const {
        auto* entry = Child<QLineEdit>(name);
        if (!entry->hasFocus())
            QTest::mouseClick(entry, Qt::LeftButton);
        entry->selectAll();
        QTest::keyClicks(entry, QString::fromLatin1(text));
    }
    void PressReturn() const {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        Settle();
    }
    QString Text(const char* name) const { return Child<QLineEdit>(name)->text(); }
    QString Focus() const {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    void ExpectRefusal(const char* text) {
        dialogs.ExpectBox(QString::fromLatin1(text), MsgStyle::Plain, QStringLiteral("Entry Error"),
                          MsgAnswer::Ok);
    }

    ScriptedDialogs dialogs;
    FileSystem files;
    RecordingRunner runner;
    std::unique_ptr<frmDataXfr> view;
};
} // namespace

TEST_F(DataXfr, CaptionNamesDirectionAndSet) {
    const QTemporaryDir folder;
    gHdnFile = folder.filePath(QStringLiteral("Press.hdn"));
    Open();
    EXPECT_EQ(view->windowTitle(), "Target Board Data Download");
    QFile file(gHdnFile);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    gXferMode = XferMode::Upload;
    Open();
    EXPECT_EQ(view->windowTitle(), "Target Board Data Upload - [Press.hdn]");
}

TEST_F(DataXfr, StandardEmptiesAndDisablesTheEntries) {
    Open();
    ChooseRange();
    ChooseStandard();
    for (const char* name :
         {"lblRange(0)", "lblRange(1)", "txtRange(0)", "txtRange(1)", "updRange(0)", "updRange(1)"})
        EXPECT_FALSE(Child<QWidget>(name)->isEnabled()) << name;
    EXPECT_EQ(Text("txtRange(0)"), "");
    EXPECT_EQ(Text("txtRange(1)"), "");
}

TEST_F(DataXfr, RangeFillsTheEntriesWithTheStandardRangeOfTheBoard) {
    const struct {
        qint16 board;
        const char *from, *to;
    } rows[] = {{50, "32", "8175"}, {68, "32", "7167"}, {51, "70", "219"}};
    for (const auto& row : rows) {
        gXferBoard = row.board;
        Open();
        ChooseRange();
        EXPECT_EQ(Text("txtRange(0)"), row.from);
        EXPECT_EQ(Text("txtRange(1)"), row.to);
        EXPECT_TRUE(Child<QWidget>("updRange(1)")->isEnabled());
        EXPECT_EQ(Focus(), "txtRange(0)");
        EXPECT_EQ(Child<QLineEdit>("txtRange(0)")->selectedText(), row.from);
    }
}

TEST_F(DataXfr, OkWithStandardRunsJob4OverTheStandardRange) {
    Open();
    ChooseStandard();
    Click("cmdOk");
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 70, 219, true}}));
    EXPECT_FALSE(view->isVisible());
}

TEST_F(DataXfr, OkWithARangeRunsJob4OverIt) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "100");
    PressReturn();
    Type("txtRange(1)", "110");
    PressReturn();
    Click("cmdOk");
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 100, 110, true}}));
}

TEST_F(DataXfr, OkWithNeitherLeavesTheRangeAsItWas) {
    gXferFrom = 81;
    gXferTo = 82;
    Open();
    Click("cmdOk");
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 81, 82, true}}));
}

TEST_F(DataXfr, CancelAndTheCloseBoxRunNothing) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "abc"); // a wrong entry does not keep anybody here
    Click("cmdCancel");
    EXPECT_FALSE(view->isVisible());
    Open();
    view->close();
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(runner.runs.empty());
    EXPECT_EQ(gXferFrom, 0);
}

TEST_F(DataXfr, ReturnMovesOnLikeTab) {
    Open();
    ChooseRange();
    PressReturn();
    EXPECT_EQ(Focus(), "txtRange(1)");
    EXPECT_EQ(Child<QLineEdit>("txtRange(1)")->selectedText(), "219");
    EXPECT_TRUE(runner.runs.empty());
}

TEST_F(DataXfr, AClickIntoAnEntrySelectsItsText) {
    Open();
    ChooseRange();
    Click("txtRange(1)");
    EXPECT_EQ(Child<QLineEdit>("txtRange(1)")->selectedText(), "219");
}

TEST_F(DataXfr, LettersAreRefusedOnceAndTheFocusComesBack) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "abc");
    ExpectRefusal("Only Numerical Data Allowed.");
    PressReturn();
    EXPECT_EQ(Focus(), "txtRange(0)");
    EXPECT_EQ(Text("txtRange(0)"), "abc");
    EXPECT_EQ(dialogs.Boxes().size(), 1u);
}

TEST_F(DataXfr, PointIsRefused) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "100.5");
    ExpectRefusal("Please Use Whole Numbers Only.");
    PressReturn();
    EXPECT_EQ(Focus(), "txtRange(0)");
}

TEST_F(DataXfr, OutOfRangeEntriesGoBackToTheirEnds) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "69");
    ExpectRefusal("Entry is out of Range (70-219)");
    PressReturn();
    EXPECT_EQ(Text("txtRange(0)"), "70");
    EXPECT_EQ(Focus(), "txtRange(0)");
    PressReturn();
    Type("txtRange(1)", "220");
    ExpectRefusal("Entry is out of Range (70-219)");
    PressReturn();
    EXPECT_EQ(Text("txtRange(1)"), "219");
    EXPECT_EQ(Focus(), "txtRange(1)");
}

TEST_F(DataXfr, ReversedRangeIsRefused) {
    Open();
    ChooseRange();
    PressReturn();
    Type("txtRange(1)", "100");
    PressReturn();
    QTest::mouseClick(Child<QLineEdit>("txtRange(0)"), Qt::LeftButton);
    Type("txtRange(0)", "101");
    ExpectRefusal("TO Can Not Be Greater Than FROM");
    PressReturn();
    EXPECT_EQ(Focus(), "txtRange(0)");
}

TEST_F(DataXfr, OkNeverRunsWithAnEntryThatWasRefused) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "8000");
    ExpectRefusal("Entry is out of Range (70-219)");
    Click("cmdOk");
    EXPECT_TRUE(runner.runs.empty());
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(Text("txtRange(0)"), "70");
    Click("cmdOk");
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 70, 219, true}}));
}

TEST_F(DataXfr, GivingUpTheRangeNeedsNoValidEntry) {
    Open();
    ChooseRange();
    Type("txtRange(0)", "abc");
    ChooseStandard();
    Click("cmdOk");
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 70, 219, true}}));
}

TEST_F(DataXfr, ArrowsStepTheEntryWithinTheRange) {
    Open();
    ChooseRange();
    auto* arrows = Child<EntryUpDown>("updRange(0)");
    QTest::mouseClick(arrows->findChild<QToolButton*>(QStringLiteral("up")), Qt::LeftButton);
    EXPECT_EQ(Text("txtRange(0)"), "71");
    for (int i = 0; i < 3; ++i)
        QTest::mouseClick(arrows->findChild<QToolButton*>(QStringLiteral("down")), Qt::LeftButton);
    EXPECT_EQ(Text("txtRange(0)"), "70");
    QTest::keyClick(Child<QLineEdit>("txtRange(0)"), Qt::Key_Up);
    EXPECT_EQ(arrows->Value(), 71);
    Type("txtRange(0)", "150");
    QTest::keyClick(Child<QLineEdit>("txtRange(0)"), Qt::Key_Down);
    EXPECT_EQ(Text("txtRange(0)"), "149");
    Type("txtRange(0)", "x");
    QTest::keyClick(Child<QLineEdit>("txtRange(0)"), Qt::Key_Up);
    EXPECT_EQ(Text("txtRange(0)"), "150");
    EXPECT_EQ(Focus(), "txtRange(0)");
}

TEST_F(DataXfr, RunsTheJobFromExecAndReturns) {
    view = std::make_unique<frmDataXfr>(dialogs, files, runner);
    runner.dialog = view.get();
    QTimer::singleShot(0, view.get(), [this] {
        ChooseStandard();
        QTest::mouseClick(Child<QWidget>("cmdOk"), Qt::LeftButton);
    });
    view->exec();
    EXPECT_EQ(runner.runs, (std::vector<JobRun>{{4, 70, 219, true}}));
}
