#include "session/BackgroundUpdate.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "session/CommMode.h"
#include <QScopedValueRollback>

namespace {
QString SystemMessage(const QString& text) {
    return QStringLiteral("System Message:  ") + text;
}

const QString statusTable = QStringLiteral("frmStatusTable");
const QString timing = QStringLiteral("frmTiming");
const QString trending = QStringLiteral("frmTrending");
const QString targetBoard = QStringLiteral("frmTargetBoard");
} // namespace

ShellView::~ShellView() = default;

BackgroundUpdate::BackgroundUpdate(RSComm& link, CommMode& mode, Dialogs& dialogs, ShellView& views)
    : link_(link), mode_(mode), dialogs_(dialogs), views_(views) {}

void BackgroundUpdate::Tick() {
    if (inTick_ || link_.OperationRuns())
        return;
    const QScopedValueRollback<bool> running(inTick_, true);
    NoticeModeChange();
    if (link_.OnlineMode())
        ReportFaultCode(PollBoard());
    else
        ReportOffline();
    views_.ShowSystemMessage(systemMessage_);
    // The tick yields by returning to the event loop. A yield from within would run what the user
    // has clicked meanwhile, and a modal view opened by that would keep the tick from returning.
}

void BackgroundUpdate::NoticeModeChange() {
    if (link_.OnlineMode() != lastOnlineMode_) {
        mode_.RefreshCommMode();
        faultsAlerted_ = false;
    }
    lastOnlineMode_ = link_.OnlineMode();
}

// One read of the board at the most, and none while somebody else may use the line. A failure
// without an alert is one too: a port that was lost between two exchanges timed nothing out.
qint16 BackgroundUpdate::PollBoard() {
    if (link_.CommError()) {
        systemMessage_ = SystemMessage(QStringLiteral("Comm Error with Target Board"));
        mode_.RefreshCommMode();
        return 0;
    }
    if (link_.CommErrorAlert() || link_.InUploadMode() || link_.InProgramMode())
        return 0;
    if (views_.IsViewVisible(targetBoard))
        return link_.FaultCode();
    return PollByActiveView();
}

qint16 BackgroundUpdate::PollByActiveView() {
    const QString active = views_.ActiveChildName();
    if (active == statusTable || active == trending)
        return link_.FaultCode();
    if (active == timing) {
        link_.PLSOffset(); // keeps the board's link alive; the value is of no use here
        return 0;
    }
    const bool anyViewVisible = views_.IsViewVisible(statusTable) || views_.IsViewVisible(timing) ||
                                views_.IsViewVisible(trending);
    return anyViewVisible ? 0 : PollForBrowser();
}

qint16 BackgroundUpdate::PollForBrowser() {
    const QString path = views_.SelectedProgramPath();
    try {
        const qint16 board = ProgramBoardIndex(path);
        unreadableSet_.clear();
        if (!IsPLSBoard(board))
            return link_.FaultCode();
        link_.PLSOffset();
    } catch (const RunTimeError& error) {
        // Once for each set, not twice a second.
        if (unreadableSet_ != path) {
            unreadableSet_ = path;
            ShowErrorBox(dialogs_, error, QStringLiteral("Quentor"), MsgStyle::Critical);
        }
    }
    return 0;
}

// The link may have gone offline in the poll: the texts for online stay for this tick all the
// same, and the failure shows at the next one.
void BackgroundUpdate::ReportFaultCode(qint16 faultCode) {
    if (faultCode < 1) {
        systemMessage_ = SystemMessage(QStringLiteral("Quentor is Currently ON-LINE"));
        return;
    }
    if (!faultsAlerted_) {
        dialogs_.MsgBox(QStringLiteral("Faults Active in Target Board"), MsgStyle::Critical,
                        QStringLiteral("Quentor"));
        faultsAlerted_ = true;
    }
    systemMessage_ = SystemMessage(link_.FaultDescription(faultCode));
}

void BackgroundUpdate::ReportOffline() {
    if (link_.CommError()) {
        systemMessage_ = SystemMessage(QStringLiteral("Comm Fault with Target Board"));
        mode_.RefreshCommMode();
    } else {
        systemMessage_ = SystemMessage(QStringLiteral("Quentor is Currently OFF-LINE"));
    }
}
