#pragma once

#include "base/MSComm.h"
#include "support/VirtualClock.h"
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

/// A port whose other end answers from a script, for tests on the exact bytes: each byte sent
/// takes the next reply. A missing reply is silence; a reply may be late. Misuse raises what a
/// real port raises.
class ScriptedPort final : public MSComm {
public:
    explicit ScriptedPort(VirtualClock& clock) : clock_(clock) {}

    /// The answer to the next byte that is sent and has none yet.
    void Reply(int byte, double after = 0.001);
    void Replies(const std::vector<int>& bytes);
    /// The next byte that is sent is answered by two, a millisecond apart: noise, or a doubled one.
    void ReplyTwice(int first, int second);
    /// The next byte that is sent gets no answer.
    void Silence();
    /// Nothing of the script is left, and nothing is under way.
    void ForgetScript() {
        script_.clear();
        arriving_.clear();
    }
    /// Every byte that has no scripted reply is echoed, except that an attention and the command
    /// byte after it are acknowledged.
    void AnswerLikeBoard(bool on) { answersLikeBoard_ = on; }
    /// Bytes that nobody asked for lie in the input buffer.
    void Receive(const std::vector<int>& bytes);
    /// The device goes away: at once, or as soon as this many more bytes were sent.
    void Lose();
    void LoseAfter(int bytesSent) { bytesUntilLoss_ = bytesSent; }
    /// SetPortOpen(true) raises this error number with this description; 0 ends that.
    void RefuseToOpen(int errorNumber, const QString& description);
    /// The next `times` settings of the port number raise 8002.
    void RefusePortNumbers(int times) { portNumberRefusals_ = times; }
    /// Each byte sent raises this error number; 0 ends that.
    void RefuseOutput(int errorNumber) { outputError_ = errorNumber; }
    /// The wait for input of this number, counted from now and from 1, raises this error number.
    void RaiseInWait(int wait, int errorNumber) {
        waitsUntilError_ = wait;
        waitError_ = errorNumber;
    }
    /// Input gives nothing although bytes wait.
    void WithholdInput(bool on) { withholdsInput_ = on; }

    /// Bytes sent so far, in order.
    const std::vector<int>& Sent() const { return sent_; }
    void ForgetSent() { sent_.clear(); }

    int CommPort() const override { return commPort_; }
    void SetCommPort(int port) override;
    QString Settings() const override { return settings_; }
    void SetSettings(const QString& settings) override;
    void SetInputLen(int length) override { inputLen_ = length; }
    void SetInputMode(int mode) override;
    bool PortOpen() const override { return open_; }
    void SetPortOpen(bool open) override;
    int InBufferCount() override;
    void SetInBufferCount(int count) override;
    void Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    bool WaitForInput(double deadline) override;

private:
    struct Scripted {
        std::optional<int> byte;
        double after;
        std::optional<int> second = std::nullopt;
    };
    struct Arriving {
        int byte;
        double at;
    };
    void AnswerByte(int byte);
    int AnswerOfBoard(int byte);

    VirtualClock& clock_;
    std::deque<Scripted> script_;
    std::deque<Arriving> arriving_;
    std::vector<int> sent_;
    bool answersLikeBoard_ = false;
    bool open_ = false;
    int mode_ = 0;          // entered by the bytes sent: 1 read, 2 write, 0 none
    int place_ = 0;         // of the next byte within a read of two or a write of three
    bool attended_ = false; // the byte sent last was an attention
    int bytesUntilLoss_ = -1;
    int outputError_ = 0;
    bool withholdsInput_ = false;
    int waitsUntilError_ = 0;
    int waitError_ = 0;
    int commPort_ = 1;
    int inputLen_ = 0;
    QString settings_;
    int refuseNumber_ = 0;
    QString refuseDescription_;
    int portNumberRefusals_ = 0;
};
