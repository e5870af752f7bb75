#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/MSComm.h"
#include "base/RunTimeError.h"
#include "link/PortSettings.h"
#include "link/RSComm.h"

namespace {
constexpr std::uint8_t attention = 0xFF;
constexpr int binaryInput = 1;
} // namespace

QString RSComm::CommSettingsFile() const {
    return folder_.Path(QStringLiteral("Support/RSPort.cfg"));
}

// Runs one statement until it passes or the user gives up on it.
void RSComm::RetryOrGiveUp(const std::function<void()>& statement) {
    for (;;) {
        try {
            statement();
            return;
        } catch (const RunTimeError& error) {
            const int answer =
                dialogs_.MsgBox(ErrorReportText(error), MsgStyle::CriticalRetryCancel,
                                QStringLiteral("RSComm InitializeRSComm"));
            if (answer == MsgAnswer::Retry)
                continue;
            onlineMode_ = false;
            portSettingsBad_ = true;
            return;
        }
    }
}

// The mark of bad settings is cleared first and not last: were it cleared after a refused
// statement, the program would go on to open whatever port the control held before.
void RSComm::InitializeRSComm(MSComm& CommObj) {
    portSettingsBad_ = false;
    PortSettings settings;
    const QString path = CommSettingsFile();
    if (PortSettingsMissing(path))
        RetryOrGiveUp([&] { WriteDefaultPortSettings(path); });
    else
        RetryOrGiveUp([&] { settings = ReadPortSettings(path); });
    RetryOrGiveUp([&] {
        if (CommObj.PortOpen())
            CommObj.SetPortOpen(false);
    });
    RetryOrGiveUp([&] { CommObj.SetCommPort(settings.port); });
    RetryOrGiveUp(
        [&] { CommObj.SetSettings(QString::number(settings.baud) + QLatin1String(",n,8,1")); });
    port_ = &CommObj;
}

void RSComm::OpenRSComm(MSComm& CommObj) {
    if (asksUser_)
        return;
    const Operation operation(*this);
    InitializeRSComm(CommObj);
    if (portSettingsBad_)
        return;
    try {
        CommObj.SetInputLen(1);
        CommObj.SetInputMode(binaryInput);
        CommObj.SetPortOpen(true);
        CommObj.SetInBufferCount(0);
        linkMode_ = LinkMode::None;
        commError_ = false;
        ExchangeOverPort(attention, Reply::Wait, InputBuffer::Keep);
        onlineMode_ = !commError_;
    } catch (const RunTimeError& error) {
        ReportPortError(error);
    }
}

void RSComm::ReportPortError(const RunTimeError& error) {
    const QString text =
        QStringLiteral("Error Number = %1\r\nError Source = %2\r\n\r\n%3")
            .arg(QString::number(error.Number()), error.Source(), error.Description());
    dialogs_.MsgBox(text, MsgStyle::Critical, QStringLiteral("Comm Port Error"));
    commError_ = true;
    onlineMode_ = false;
    portSettingsBad_ = true;
}

void RSComm::CloseRSComm() {
    if (asksUser_)
        return;
    const Operation operation(*this);
    if (port_ && port_->PortOpen()) {
        for (; dataOwed_ > 0 && !commError_; --dataOwed_) // fills up a command that was cut short
            ExchangeByte(attention);
        if (!commError_)
            ExchangeByte(attention);
        try {
            port_->SetPortOpen(false);
        } catch (const RunTimeError&) {
            // A port that cannot be closed is gone already.
        }
    }
    linkMode_ = LinkMode::None;
    onlineMode_ = false;
}
