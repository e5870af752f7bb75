#pragma once

#include "base/ApplicationFolder.h"
#include "base/ViewLoop.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/grid/Grid.h"
#include "jobs/JobProgress.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "link/RSComm.h"
#include "pls/PLSJobs.h"
#include "pls/views/CycleStripView.h"
#include "pls/views/frmTiming.h"
#include "session/CommMode.h"
#include "support/BoardPort.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <functional>
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

/// Board indexes.
constexpr int k2041 = 55;
constexpr int r6041 = 64;
constexpr int r6500 = 69;

/// Prompts from a script, or answered by a function where a sweep cannot know what comes.
class TimingDialogs final : public Dialogs {
public:
    using Answer = std::function<int(const QString& text, int style, const QString& title)>;

    int MsgBox(const QString& text, int style, const QString& title) override {
        return answer ? answer(text, style, title) : scripted.MsgBox(text, style, title);
    }
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override {
        return scripted.InputBox(prompt, title, defaultText);
    }
    QString ShowOpen(const FileDialogRequest& request) override {
        return scripted.ShowOpen(request);
    }
    QString ShowSave(const FileDialogRequest& request) override {
        return scripted.ShowSave(request);
    }
    PrinterChoice ShowPrinter() override { return scripted.ShowPrinter(); }

    ScriptedDialogs scripted;
    Answer answer;
};

/// Runs jobs without a busy view.
class PlainJobRunner final : public JobRunner {
public:
    explicit PlainJobRunner(WaitJobs& jobs) : jobs_(jobs) {}
    void RunWaitJob(qint16 JobCode) override;

    std::vector<int> ran; ///< codes, in order

private:
    WaitJobs& jobs_;
};

class NoModeDisplay final : public ModeDisplay {
public:
    void ShowMode(bool) override {}
};

/// The timing view as a window of its own over a simulated board, in virtual time. Its loop gets
/// its steps from the event loop, as in the program.
class TimingUnderTest : public testing::Test {
protected:
    explicit TimingUnderTest(int model = k2041);
    ~TimingUnderTest() override;

    /// Shows the view and makes it the active one; the link is offline.
    void Open();
    /// The user's online command, and until the view is online and its loop has gone round.
    void GoOnline();
    /// Open and GoOnline.
    void OpenOnline();
    /// Lets events and steps go on until the test holds; fails after five seconds.
    void Until(const std::function<bool()>& test);
    /// Until the loop has gone round twice: what the board holds is on the screen.
    void Rounds();
    /// How often a command was sent to the board, as 0x58 for a speed.
    int Sent(int command) const;
    void SetSpeed(int rpm);
    /// Programs the board behind the view's back; the link must be online.
    void Program(qint16 channel, std::initializer_list<Setpoint> setpoints);

    template <typename T>
    T* Find(const QString& name) {
        T* child = view.findChild<T*>(name);
        EXPECT_NE(child, nullptr) << name.toStdString();
        return child;
    }
    QLineEdit* Timing(int index) { return Find<QLineEdit>(QString("txtTmg(%1)").arg(index)); }
    QLineEdit* Config(int index) { return Find<QLineEdit>(QString("txtPLS_CFG(%1)").arg(index)); }
    QString Panel(int panel) {
        return Find<QLabel>(QString("sbrMachineTiming(%1)").arg(panel))->text();
    }
    QPushButton* Button(const char* name) { return Find<QPushButton>(name); }
    QRadioButton* Option(const char* name, int index) {
        return Find<QRadioButton>(QString("%1(%2)").arg(name).arg(index));
    }
    EntryRange RangeOf(const char* family, int index) {
        return Find<EntryUpDown>(QString("%1(%2)").arg(family).arg(index))->Range();
    }
    QGroupBox* Frame(int index) { return Find<QGroupBox>(QString("fraTmg(%1)").arg(index)); }
    QString Cell(int row, int col) { return view.ChannelGrid().TextMatrix(row, col); }

    void Click(const char* button);
    void ClickOption(const char* name, int index);
    void ClickCheck(const char* name);
    void ClickArrow(const char* family, int index, const char* arrow);
    void ClickCell(int row, int col);
    /// Clicks into an entry, types over its text and leaves it by Tab; a refusal comes up then.
    void Type(QLineEdit* entry, const QString& text);
    /// Puts ON and OFF into their entries.
    void TypeSetpoint(int on, int off);
    /// Names of the controls a user can reach now, the list of boards left out.
    QStringList Live();
    /// From now on the line answers nothing, and the alert is cancelled.
    void CutLine();

    TestFolder files;
    ApplicationFolder folder;
    QString hdnFile;
    VirtualClock clock;
    NoBusyDisplay busy;
    TimingDialogs prompts;
    ScriptedDialogs& dialogs = prompts.scripted;
    haldenboard::SimulatedBoard board;
    haldenboard::Line line;
    BoardPort port;
    RSComm link;
    NoModeDisplay display;
    CommMode mode;
    WaitJobs jobs;
    PLSJobs plsJobs;
    PlainJobRunner runner;
    ViewLoopRunner loops;
    frmTiming view;
};
