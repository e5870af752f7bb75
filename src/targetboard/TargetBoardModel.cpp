#include "targetboard/TargetBoardModel.h"

#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "session/CommMode.h"
#include "targetboard/TargetBoardTexts.h"

namespace {
constexpr int yesNoCancelStop = 19; // message box style: Yes, No and Cancel with the stop icon

std::size_t Index(int index) {
    return static_cast<std::size_t>(index);
}
} // namespace

TargetBoardModel::TargetBoardModel(RSComm& link, CommMode& mode, const Clock& clock,
                                   Dialogs& dialogs, const ApplicationFolder& folder)
    : link_(link), mode_(mode), clock_(clock), dialogs_(dialogs), firstPass_(link, folder, shown_) {
}

void TargetBoardModel::Open(const QString& HdnFile) {
    shown_ = ShownAtOpening(ReadDiskIdent(HdnFile));
    running_ = false;
}

void TargetBoardModel::Start() {
    firstPass_.Drop();
    pollIndex_ = setupEntryCount;
    editing_.fill(false);
    onlineShown_ = false;
    offlineShown_ = false;
    shownSecond_ = -1;
    reportedError_.clear();
    opening_ = true;
    running_ = true;
}

ViewLoop::Step TargetBoardModel::TakeStep() {
    if (!running_)
        return ViewLoop::Step::Rest;
    ShowComputerClock();
    if (opening_) {
        opening_ = false;
        cmdGoOnline_Click();
        return ViewLoop::Step::Worked;
    }
    if (firstPass_.Runs())
        return FirstPassStep();
    if (pollIndex_ < setupEntryCount)
        return PollStep();
    return TurnOfLoop();
}

ViewLoop::Step TargetBoardModel::TurnOfLoop() {
    if (link_.OnlineMode() && link_.CommError()) {
        link_.SetOnlineMode(false);
        onlineShown_ = false;
        mode_.RefreshCommMode();
    }
    if (!link_.OnlineMode()) {
        if (!offlineShown_)
            ShowBoardOffline(shown_);
        offlineShown_ = true;
        onlineShown_ = false;
        reportedError_.clear();
        return ViewLoop::Step::Rest;
    }
    if (!onlineShown_)
        BeginFirstPass();
    else
        pollIndex_ = 0;
    return ViewLoop::Step::Worked;
}

void TargetBoardModel::BeginFirstPass() {
    onlineShown_ = false;
    firstPass_.Begin();
}

ViewLoop::Step TargetBoardModel::FirstPassStep() {
    try {
        firstPass_.TakeStep();
        if (firstPass_.Runs())
            return ViewLoop::Step::Worked;
        onlineShown_ = true;
        reportedError_.clear();
    } catch (const RunTimeError& error) {
        firstPass_.Drop();
        ReportOnce(error);
    }
    EndFirstPass();
    return ViewLoop::Step::Worked;
}

void TargetBoardModel::EndFirstPass() {
    offlineShown_ = false;
    pollIndex_ = 0;
}

// The pass is tried again at the next turn. A file that stays damaged would put up the same box
// for ever and leave no moment to close the view.
void TargetBoardModel::ReportOnce(const RunTimeError& error) {
    const QString report = ErrorReportText(error);
    if (report == reportedError_)
        return;
    reportedError_ = report;
    ShowErrorBox(dialogs_, error, QStringLiteral("TargetBoard FirstPass"), MsgStyle::Critical);
}

ViewLoop::Step TargetBoardModel::PollStep() {
    const int index = pollIndex_++;
    QString value;
    if (link_.OnlineMode())
        value = link_.RSRead(QString::fromUtf16(setupEntries[Index(index)].address));
    if (!link_.OnlineMode() || link_.CommError()) {
        pollIndex_ = setupEntryCount;
        return ViewLoop::Step::Worked;
    }
    if (shown_.controls.ShowsValue(index) && !IsEditing(index))
        shown_.txtSetup[Index(index)] = LastTwoCharacters(value);
    return pollIndex_ < setupEntryCount ? ViewLoop::Step::Worked : ViewLoop::Step::Rest;
}

void TargetBoardModel::ShowComputerClock() {
    const QDateTime now = clock_.WallClock();
    if (now.time().second() == shownSecond_)
        return;
    shownSecond_ = now.time().second();
    shown_.lblCurrTime = CurrTimeText(now.time());
    shown_.lblCurrDate = CurrDateText(now.date());
}

void TargetBoardModel::cmdGoOnline_Click() {
    if (!link_.OnlineMode())
        mode_.GoOnline();
}

void TargetBoardModel::cmdResetFaults_Click() {
    const int answer = dialogs_.MsgBox(TargetBoardText::ResetPrompt(), yesNoCancelStop,
                                       TargetBoardText::ResetTitle());
    if (answer != MsgAnswer::Yes || !running_)
        return;
    shown_.controls.SetResetFaults(false);
    if (!link_.OnlineMode())
        return;
    for (const char16_t* address : faultResetAddresses) {
        if (!link_.CommError())
            link_.RSWrite(QString::fromUtf16(address), QStringLiteral("0"));
    }
    if (!link_.CommError())
        BeginFirstPass();
}

void TargetBoardModel::cmdSetToCurrTime_Click() {
    WriteInOrder(TimeWrites(clock_.WallClock().time()));
}

void TargetBoardModel::cmdSetToCurrDate_Click() {
    WriteInOrder(DateWrites(clock_.WallClock().date()));
}

void TargetBoardModel::WriteInOrder(const std::array<BoardWrite, 3>& writes) {
    for (const BoardWrite& write : writes) {
        if (MayUseLine())
            link_.RSWrite(write.address, write.value);
    }
}

void TargetBoardModel::SetupEntered(int index) {
    editing_[Index(index)] = true;
}

void TargetBoardModel::SetupAccepted(int index, const QString& text) {
    WriteSetup(index, text);
    editing_[Index(index)] = false;
}

void TargetBoardModel::SetupStepped(int index, const QString& text) {
    editing_[Index(index)] = false;
    WriteSetup(index, text);
}

void TargetBoardModel::SetupAbandoned(int index) {
    editing_[Index(index)] = false;
}

void TargetBoardModel::WriteSetup(int index, const QString& text) {
    shown_.txtSetup[Index(index)] = text;
    if (MayUseLine())
        link_.RSWrite(QString::fromUtf16(setupEntries[Index(index)].address), text);
}

bool TargetBoardModel::MayUseLine() const {
    return running_ && link_.OnlineMode() && !link_.CommError();
}
