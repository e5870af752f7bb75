#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/MSComm.h"
#include "base/RunTimeError.h"
#include "link/LongWait.h"
#include "link/RSComm.h"
#include <algorithm>
#include <QScopedValueRollback>

namespace {
constexpr std::uint8_t attention = 0xFF;
constexpr std::uint8_t acknowledge = 0x55;
constexpr int notAcknowledged = -1;     // an acknowledge that cannot be trusted
constexpr double firstReplyTime = 1.0;  // seconds until the first time-out
constexpr double resyncReplyTime = 2.0; // seconds after each resynchronising attention
constexpr int timeOutsBeforeAlert = 3;  // 1 + 2 + 2 seconds on a dead line
constexpr double handshakeTime = 2.0;   // seconds in which a mode must be entered
constexpr double quietLineTime = 0.05;  // seconds without a byte that count as a quiet line
constexpr double noisyLineTime = 1.0;   // seconds after which a line is given up as never quiet

QString CannotCommunicate() {
    return QStringLiteral("Cannot Communicate with Target Board.\r"
                          "Verify RS-232 Cable is Connected Between\r"
                          "COMM Port and PROG Port.");
}
} // namespace

RSComm::RSComm(Dialogs& dialogs, Clock& clock, BusyDisplay& busy, const ApplicationFolder& folder)
    : dialogs_(dialogs), clock_(clock), busy_(busy), folder_(folder) {}

RSComm::~RSComm() = default;

void RSComm::SendByte(std::uint8_t byte) {
    port_->Output(QByteArray(1, static_cast<char>(byte)));
}

// What the port itself raises is a link failure like any other: it stays inside the link.
int RSComm::ExchangeByte(std::uint8_t byte, Reply reply, InputBuffer input) {
    if (CommError())
        return noReply;
    try {
        return ExchangeOverPort(byte, reply, input);
    } catch (const RunTimeError&) {
        return FailLink();
    }
}

int RSComm::FailLink() {
    linkMode_ = LinkMode::None;
    commError_ = true;
    return noReply;
}

int RSComm::ExchangeOverPort(std::uint8_t byte, Reply reply, InputBuffer input) {
    if (!port_ || !port_->PortOpen())
        return FailLink();
    if (inDoubt_)
        LetLineFallQuiet();
    if (input == InputBuffer::Clear)
        port_->SetInBufferCount(0);
    port_->SetInputLen(1);
    SendByte(byte);
    commErrorAlert_ = false;
    return reply == Reply::None ? 0 : AwaitReply();
}

// Waits for the reply to a byte. After a time-out an attention byte is sent: what answers it is
// returned as though it answered the byte first sent, and the callers notice by the link mode and
// their echo.
int RSComm::AwaitReply() {
    LongWait display(busy_, clock_);
    double deadline = clock_.MonotonicSeconds() + firstReplyTime;
    int timeOuts = 0;
    while (!InputArrives(deadline, display)) {
        linkMode_ = LinkMode::None;
        inDoubt_ = true;
        commError_ = true;
        commErrorAlert_ = true;
        deadline = clock_.MonotonicSeconds() + resyncReplyTime;
        if (++timeOuts < timeOutsBeforeAlert) {
            port_->SetInBufferCount(0);
            commError_ = false;
            SendByte(attention);
            continue;
        }
        display.End();
        if (!UserRetriesLine())
            return noReply;
        display.Begin();
        timeOuts = 0;
    }
    const QByteArray received = port_->Input();
    if (received.isEmpty()) // announced, but gone: it must not pass for a 0
        throw RunTimeError(ErrorNumber::DeviceIOError);
    commErrorAlert_ = false;
    return static_cast<std::uint8_t>(received.front());
}

// The event loop turns while the box is up: whatever runs behind it finds CommError standing, and
// what it does to CommError does not count.
bool RSComm::UserRetries(const QString& text) {
    const QScopedValueRollback<bool> asks(asksUser_, true);
    const QScopedValueRollback<bool> kept(commError_);
    const int answer = dialogs_.MsgBox(text, MsgStyle::CriticalRetryCancel,
                                       QStringLiteral("WARNING - Communication Error!"));
    return answer == MsgAnswer::Retry;
}

bool RSComm::UserRetriesLine() {
    return UserRetries(CannotCommunicate());
}

bool RSComm::InputArrivesWithin(double seconds) {
    LongWait display(busy_, clock_);
    return InputArrives(clock_.MonotonicSeconds() + seconds, display);
}

// Waits for a received byte until `deadline`. When the port is lost on the way the time passes all
// the same: a time-out counts only when it is one.
bool RSComm::InputArrives(double deadline, LongWait& display) {
    if (port_->InBufferCount() >= 1)
        return true;
    for (;;) {
        const double now = clock_.MonotonicSeconds();
        if (now >= deadline)
            return false;
        const double sliceEnd = std::min(deadline, display.Look(now));
        if (port_->WaitForInput(sliceEnd))
            return true;
        const double left = sliceEnd - clock_.MonotonicSeconds();
        if (left > 0)
            clock_.Wait(left);
    }
}

void RSComm::WaitSeconds(double seconds) {
    LongWait display(busy_, clock_);
    const double deadline = clock_.MonotonicSeconds() + seconds;
    for (double now = clock_.MonotonicSeconds(); now < deadline; now = clock_.MonotonicSeconds())
        clock_.Wait(std::min(deadline, display.Look(now)) - now);
}

// Waits until nothing more arrives, and throws away what did: a reply that a time-out gave up, or
// the second of a doubled one. Taken for the answer to the next byte it would leave all further
// replies one byte behind, and an attention that meets a board in the middle of a write is stored
// as data. True if anything was thrown away.
bool RSComm::LetLineFallQuiet() {
    LongWait display(busy_, clock_);
    bool noisy = false;
    const double end = clock_.MonotonicSeconds() + noisyLineTime;
    double now = clock_.MonotonicSeconds();
    while (now < end && InputArrives(now + quietLineTime, display)) {
        port_->SetInBufferCount(0);
        noisy = true;
        now = clock_.MonotonicSeconds();
    }
    inDoubt_ = false;
    return noisy;
}

// Enters a link mode: attention and the mode byte, each to be acknowledged. When the mode byte
// timed out, what then answered was the acknowledge of an attention and the board waits for a
// command: an address byte 0x03 sent now would stop the machine in program mode. The handshake
// starts over. `dataBytes` is what the board takes after the mode byte without looking at it.
bool RSComm::SetTargetMode(int mode, std::uint8_t modeByte, int dataBytes) {
    if (asksUser_)
        return false;
    linkMode_ = LinkMode::None;
    double deadline = clock_.MonotonicSeconds() + handshakeTime;
    for (;;) {
        if (clock_.MonotonicSeconds() >= deadline) {
            if (!UserRetries(QStringLiteral("Cannot Set PLC Mode Within Target Board."))) {
                commError_ = true;
                onlineMode_ = false;
                CloseRSComm();
                return false;
            }
            deadline = clock_.MonotonicSeconds() + handshakeTime;
        }
        linkMode_ = mode; // a time-out takes it back
        int reply = SendAttention();
        if (reply == acknowledge && BoardAwaitsCommand(mode)) {
            linkMode_ = mode;
            dataOwed_ = dataBytes;
            reply = ExchangeByte(modeByte);
            if (reply == acknowledge && linkMode_ == mode)
                return true;
        }
        linkMode_ = LinkMode::None;
        if (reply == noReply)
            return false;
        inDoubt_ = inDoubt_ || reply != acknowledge;
    }
}

// Sends attention for a mode that is to be entered; gives the reply. In doubt an acknowledge counts
// only if nothing comes behind it: else it may be noise ahead of an echo, and the board stands in
// the middle of a write and would store the mode byte.
int RSComm::SendAttention() {
    const bool doubtful = inDoubt_;
    int reply = ExchangeByte(attention, Reply::Wait, InputBuffer::Clear);
    const bool timedOut = inDoubt_; // each exchange begins without doubt
    try {
        if (reply == acknowledge && (doubtful || timedOut) && LetLineFallQuiet())
            reply = notAcknowledged;
    } catch (const RunTimeError&) {
        reply = FailLink();
    }
    inDoubt_ = inDoubt_ || reply != acknowledge;
    return reply;
}

// Whether an acknowledged attention means that the board waits for a command. Where it takes data
// it takes an attention for data too, and acknowledges it: a command that was cut short is first
// filled up with attentions, of which only those count that were answered in time.
bool RSComm::BoardAwaitsCommand(int mode) {
    if (dataOwed_ == 0)
        return true;
    const bool timedOut = linkMode_ != mode;
    dataOwed_ -= timedOut ? 0 : 1;
    return false;
}
