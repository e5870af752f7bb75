#include "link/PortProbe.h"

#include "base/Clock.h"
#include "base/MSComm.h"
#include "base/RunTimeError.h"
#include <cmath>

namespace {
constexpr char attention = '\xFF';
constexpr int acknowledge = 0x55;
constexpr int binaryInput = 1;

// Gives the port back as it was lent, whatever happens.
class LentPort {
public:
    explicit LentPort(MSComm& port)
        : port_(port), number_(port.CommPort()), settings_(port.Settings()) {}
    ~LentPort() {
        Quietly([this] {
            if (port_.PortOpen())
                port_.SetPortOpen(false);
        });
        Quietly([this] { port_.SetCommPort(number_); });
        if (!settings_.isEmpty())
            Quietly([this] { port_.SetSettings(settings_); });
    }
    LentPort(const LentPort&) = delete;
    LentPort& operator=(const LentPort&) = delete;

private:
    // A port that cannot be closed or set is gone; the next opening tells.
    template <class Statement>
    static void Quietly(Statement statement) {
        try {
            statement();
        } catch (const RunTimeError&) {
        }
    }

    MSComm& port_;
    int number_;
    QString settings_;
};

void Open(MSComm& port, const PortSettings& settings) {
    port.SetCommPort(settings.port);
    port.SetSettings(QString::number(settings.baud) + QLatin1String(",n,8,1"));
    port.SetInputLen(1);
    port.SetInputMode(binaryInput);
    port.SetPortOpen(true);
    port.SetInBufferCount(0);
}

PortProbe AskBoard(MSComm& port, const Clock& clock) {
    PortProbe probe;
    const double sent = clock.MonotonicSeconds();
    port.Output(QByteArray(1, attention));
    const bool arrived = port.WaitForInput(sent + probeReplyTime);
    if (!arrived && !port.PortOpen())
        throw RunTimeError(ErrorNumber::DeviceIOError);
    const QByteArray input = arrived ? port.Input() : QByteArray();
    if (input.isEmpty())
        return probe;
    probe.milliseconds = static_cast<int>(std::lround((clock.MonotonicSeconds() - sent) * 1000.0));
    probe.answer = static_cast<unsigned char>(input.front());
    probe.outcome = probe.answer == acknowledge ? ProbeOutcome::Answered : ProbeOutcome::Strange;
    return probe;
}

PortProbe Failed(ProbeOutcome outcome, const RunTimeError& error) {
    PortProbe probe;
    probe.outcome = outcome;
    probe.trouble = error.Description();
    return probe;
}

QString Where(const PortSettings& settings) {
    return QStringLiteral("COM%1 at %2 baud").arg(settings.port).arg(settings.baud);
}
} // namespace

PortProbe ProbePort(MSComm& port, const Clock& clock, const PortSettings& settings) {
    const LentPort lent(port);
    try {
        Open(port, settings);
    } catch (const RunTimeError& error) {
        return Failed(ProbeOutcome::NotOpened, error);
    }
    try {
        return AskBoard(port, clock);
    } catch (const RunTimeError& error) {
        return Failed(ProbeOutcome::Lost, error);
    }
}

QString ProbeText(const PortProbe& probe, const PortSettings& settings) {
    const QString where = Where(settings);
    switch (probe.outcome) {
    case ProbeOutcome::NotOpened:
        return probe.trouble;
    case ProbeOutcome::Lost:
        return QStringLiteral("COM%1 was lost during the test: %2")
            .arg(QString::number(settings.port), probe.trouble);
    case ProbeOutcome::NoAnswer:
        return QStringLiteral("%1: the port opens, but no answer came within %2 second. Check the "
                              "cable between this port and the PROG port, the supply of the board "
                              "and the speed.")
            .arg(where)
            .arg(probeReplyTime);
    case ProbeOutcome::Strange:
        return QStringLiteral("%1: something answered, but not as a board does (%2H after %3 ms). "
                              "Test once more; if it stays so, check the speed and what is "
                              "connected.")
            .arg(where, QStringLiteral("%1").arg(probe.answer, 2, 16, QLatin1Char('0')).toUpper())
            .arg(probe.milliseconds);
    case ProbeOutcome::Answered:
        break;
    }
    return QStringLiteral("%1: a board answered in %2 ms.").arg(where).arg(probe.milliseconds);
}
