#pragma once

#include "base/ViewLoop.h"
#include "targetboard/BoardClock.h"
#include "targetboard/FirstPass.h"
#include "targetboard/TargetBoardShown.h"
#include <array>
#include <QString>

class ApplicationFolder;
class Clock;
class CommMode;
class Dialogs;
class RSComm;
class RunTimeError;

/// The target board interface without its window: what the four pages show of one board, read
/// again and again while online, and what the user sends to it. The view calls the handlers, gives
/// the loop its steps and shows Shown() after each.
class TargetBoardModel {
public:
    /// All must outlive the object.
    TargetBoardModel(RSComm& link, CommMode& mode, const Clock& clock, Dialogs& dialogs,
                     const ApplicationFolder& folder);

    /// Prepares for a program set, the path of its .hdn file, and its board; nothing of an earlier
    /// one stays. Raises as ReadDiskIdent.
    void Open(const QString& HdnFile);
    /// The view is on the screen: the loop runs from now on, and its first step goes online.
    void Start();
    /// cmdOk: the loop ends. Nothing is sent from now on.
    void Stop() { running_ = false; }
    bool Running() const { return running_; }
    const TargetBoardShown& Shown() const { return shown_; }

    /// One step of the loop: one change between online and offline, or one read. Rests after each
    /// round of the entries and while offline. Errors of the code files are reported by a box.
    ViewLoop::Step TakeStep();

    /// Goes online if the link is offline; a communication failure is forgotten.
    void cmdGoOnline_Click();
    /// Asks, then writes 0 to the four fault addresses and reads the board anew.
    void cmdResetFaults_Click();
    /// Writes the computer's time, or date, to the board.
    void cmdSetToCurrTime_Click();
    void cmdSetToCurrDate_Click();

    /// The set-up entry got the focus: what is read for it is not shown until it is left.
    void SetupEntered(int index);
    /// The entry was left with a text that it accepts; the text goes to the board as it stands.
    void SetupAccepted(int index, const QString& text);
    /// The up-down of the entry changed its text, which goes to the board.
    void SetupStepped(int index, const QString& text);
    /// The entry was left without taking what was typed.
    void SetupAbandoned(int index);

private:
    ViewLoop::Step TurnOfLoop();
    ViewLoop::Step FirstPassStep();
    ViewLoop::Step PollStep();
    void BeginFirstPass();
    void EndFirstPass();
    void ReportOnce(const RunTimeError& error);
    void ShowComputerClock();
    void WriteSetup(int index, const QString& text);
    void WriteInOrder(const std::array<BoardWrite, 3>& writes);
    bool MayUseLine() const;

    RSComm& link_;
    CommMode& mode_;
    const Clock& clock_;
    Dialogs& dialogs_;
    TargetBoardShown shown_;
    FirstPass firstPass_;
    bool running_ = false;
    bool opening_ = false;
    bool onlineShown_ = false;
    bool offlineShown_ = false;
    int pollIndex_ = setupEntryCount; // entry that the poll reads next; their count at its end
    int shownSecond_ = -1;            // second of the computer's clock that is shown
    QString reportedError_;           // the first pass failed with it and will again
};
