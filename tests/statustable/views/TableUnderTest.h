#pragma once

#include "../TestFiles.h"
#include "base/ViewLoop.h"
#include "board/SimulatedBoard.h"
#include "controls/grid/Grid.h"
#include "jobs/JobProgress.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/CommMode.h"
#include "statustable/views/frmStatusTable.h"
#include "statustable/views/StatusTableHost.h"
#include "support/LinkUnderTest.h"
#include "support/VirtualAlarms.h"
#include <deque>
#include <memory>
#include <vector>

/// The simulated board at the other end of a port, in virtual time. Unplugged, it is silent.
class BoardAtPort final : public MSComm {
public:
    BoardAtPort(VirtualClock& clock, int model) : board(model), clock_(clock) {}

    haldenboard::SimulatedBoard board;
    bool plugged = true;
    int bytesSent = 0;

    int CommPort() const override { return 1; }
    void SetCommPort(int) override {}
    QString Settings() const override { return settings_; }
    void SetSettings(const QString& settings) override { settings_ = settings; }
    void SetInputLen(int) override {}
    void SetInputMode(int) override {}
    bool PortOpen() const override { return open_; }
    void SetPortOpen(bool open) override { open_ = open; }
    int InBufferCount() override { return static_cast<int>(input_.size()); }
    void SetInBufferCount(int) override { input_.clear(); }
    void Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    bool WaitForInput(double deadline) override;

private:
    VirtualClock& clock_;
    std::deque<char> input_;
    QString settings_;
    bool open_ = false;
};

/// Runs jobs at once, without a busy view.
class JobsAtOnce final : public JobRunner, public JobProgress {
public:
    void RunWaitJob(qint16 code) override {
        ran.push_back(code);
        jobs.Run(code, *this);
    }
    void ShowMessage(const QString&) override {}
    void ShowSecondLine(const QString&) override {}
    void SetRange(qint32, qint32) override {}
    void SetValue(qint32 reached) override { value = reached; }
    bool Cancelled() const override { return cancelAt >= 0 && value >= cancelAt; }
    void ClearCancel() override { cancelAt = -1; }
    void Yield() override {}

    WaitJobs jobs;
    std::vector<qint16> ran;
    int value = 0;
    int cancelAt = -1;
};

/// A main window that only notes what it is asked.
class NotedHost final : public StatusTableHost {
public:
    QString SelectedProgramPath() const override { return selected; }
    void ShowTableCommands(bool shown) override { commandsShown = menusShown = shown; }
    void HideTableMenus() override { menusShown = false; }
    void PopUpTableMenu(const QPoint&) override { ++popUps; }
    void UsePrinter(const PrinterChoice& choice) override { printer = choice.printerName; }

    QString selected;
    bool commandsShown = false;
    bool menusShown = false;
    int popUps = 0;
    QString printer;
};

/// The real view on the screen with everything around it: a K2010 board at the port, virtual time
/// on the line, scripted dialogs, and real events in the view.
class TableUnderTest : public LinkUnderTest, private ModeDisplay {
public:
    explicit TableUnderTest(int model = 49);
    ~TableUnderTest() override;

    /// Goes online with the board.
    void Connect();
    /// Lets the loop and the events run until the condition holds; fails the test if it never does.
    void Until(const std::function<bool()>& condition);
    /// Lets the loop make some passes.
    void RunPasses();
    /// Types into the current cell.
    void Type(const QString& keys);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void ClickCell(int row, int col);
    /// Puts addresses into column 1 from row 2 on, as if they had come with a file.
    void Fill(const QStringList& addresses);
    void ChooseBoard(qint16 board);
    QString Cell(int row, int col) const { return view->StatusGrid().TextMatrix(row, col); }
    QStringList Column1() const;
    template <class Control>
    Control& Find(const char* name) const {
        return *view->findChild<Control*>(QString::fromLatin1(name));
    }

    TestFiles files;
    BoardAtPort boardPort;
    CommMode mode;
    VirtualAlarms alarms{clock};
    ViewLoopRunner loops;
    JobsAtOnce jobs;
    NotedHost host;
    std::unique_ptr<frmStatusTable> view;

private:
    void ShowMode(bool) override {}
    // A millisecond of virtual time and one turn of the events.
    void LetAMomentPass();
};
