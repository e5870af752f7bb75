#pragma once

#include <QString>

class CommMode;
class Dialogs;
class RSComm;

/// What the background update sees of the views, and where it writes.
class ShellView {
public:
    virtual ~ShellView();
    /// Name of the main window's active child ("frmStatusTable"), empty when there is none.
    virtual QString ActiveChildName() const = 0;
    /// Whether the view of this name is on the screen.
    virtual bool IsViewVisible(const QString& name) const = 0;
    /// Path that is selected in the browser.
    virtual QString SelectedProgramPath() const = 0;
    /// Puts the text into panel 1 of the status bar.
    virtual void ShowSystemMessage(const QString& text) = 0;
};

/// The heartbeat of the program. Each tick, twice a second, compares the link's mode with the
/// last tick, polls at most one read of the board and writes the system message.
class BackgroundUpdate {
public:
    /// Milliseconds between ticks: the rate at which a board is polled at the most.
    static constexpr int interval = 500;

    /// All must outlive the object.
    BackgroundUpdate(RSComm& link, CommMode& mode, Dialogs& dialogs, ShellView& views);

    /// One tick. Does nothing while a tick or an operation of the link is on the stack, a box
    /// that one of them shows included. A .hdn file of the selected set that cannot be read is
    /// told once; nothing of it is raised.
    void Tick();

private:
    void NoticeModeChange();
    qint16 PollBoard();
    qint16 PollByActiveView();
    qint16 PollForBrowser();
    void ReportFaultCode(qint16 faultCode);
    void ReportOffline();

    RSComm& link_;
    CommMode& mode_;
    Dialogs& dialogs_;
    ShellView& views_;
    bool inTick_ = false;
    bool lastOnlineMode_ = false;
    bool faultsAlerted_ = false;
    QString systemMessage_;
    QString unreadableSet_; // set whose .hdn file could not be read and was reported
};
