#pragma once

#include "base/MSComm.h"
#include "board/Line.h"
#include "support/VirtualClock.h"

/// A port with the simulated board at its other end, in virtual time: a wait takes as long as the
/// bytes are on the line, and no longer. The pace is that of the line, whatever the settings say.
/// Misuse raises what a real port raises.
class BoardPort final : public MSComm {
public:
    /// Both must outlive the port. `clock` is the clock that the link is given too.
    BoardPort(VirtualClock& clock, haldenboard::Line& line) : clock_(clock), line_(line) {}

    /// The device goes away, as when an adapter is pulled out; it can be opened again.
    void Lose() { open_ = false; }

    int CommPort() const override { return commPort_; }
    void SetCommPort(int port) override;
    QString Settings() const override { return settings_; }
    void SetSettings(const QString& settings) override { settings_ = settings; }
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
    VirtualClock& clock_;
    haldenboard::Line& line_;
    bool open_ = false;
    int commPort_ = 1;
    int inputLen_ = 0;
    QString settings_;
};
