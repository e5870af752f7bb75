#pragma once

#include "base/MSComm.h"
#include "board/SimulatedBoard.h"
#include "FuzzSession.h"
#include <deque>
#include <optional>

/// A port at whose other end a simulated board stands, with a line between that a script spoils, in
/// virtual time. For each byte that is sent the script says what becomes of it and of its answer;
/// where the script has ended the line is dead.
///
/// A step of the script is one byte, its top bits say what happens:
///   00-3F  this byte and up to 63 after it are answered well
///   40-4F  the answer is the next byte of the script instead
///   50-5F  the answer comes late, by the delay of this number
///   60-6F  up to 16 answers in a row are lost
///   70-7F  the answer comes up to 16 times
///   80-8F  up to 16 bytes of the script lie before the answer
///   90-9F  the byte reaches the board as the next byte of the script
///   A0-AF  16 to 256 bytes are answered well
///   B0-FF  what a Mishap names, or an answer that is lost
class HostilePort final : public MSComm {
public:
    /// `model` is a board index that the simulated board knows. The clock must outlive the port.
    HostilePort(VirtualClock& clock, int model) : clock_(clock), board_(model) {}

    /// From now on the script spoils the line. It must outlive the port.
    void SpoilWith(FuzzScript& script) { script_ = &script; }
    /// From now on the board answers everything.
    void AnswerWell() { script_ = nullptr; }
    /// No byte may be sent while this link stands in a communication failure.
    void Watch(const RSComm& link) { watched_ = &link; }

    haldenboard::SimulatedBoard& Board() { return board_; }
    /// Bytes that were sent so far.
    int Sent() const { return sent_; }

    int CommPort() const override { return 1; }
    void SetCommPort(int port) override;
    QString Settings() const override { return settings_; }
    void SetSettings(const QString& settings) override { settings_ = settings; }
    void SetInputLen(int) override {}
    void SetInputMode(int) override {}
    bool PortOpen() const override { return open_; }
    void SetPortOpen(bool open) override;
    int InBufferCount() override;
    void SetInBufferCount(int count) override;
    void Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    bool WaitForInput(double deadline) override;

private:
    enum class Mishap {
        None,
        BoardReset,
        AdapterPulled,
        OutputFails,
        InputGone,
        WaitFails,
        CountFails,
        ClearFails,
        OpenFails
    };
    struct Arriving {
        double at;
        std::uint8_t byte;
    };

    void FailIf(Mishap mishap);
    void Send(std::uint8_t byte);
    void Spoil(std::uint8_t byte);
    void SpoilByStep(std::uint8_t step, std::uint8_t byte);
    void Befall(Mishap mishap, std::uint8_t byte);
    std::optional<std::uint8_t> AnswerOfBoard(std::uint8_t byte);
    void Arrive(std::optional<std::uint8_t> answer, double delay = 0.0);

    VirtualClock& clock_;
    haldenboard::SimulatedBoard board_;
    FuzzScript* script_ = nullptr;
    const RSComm* watched_ = nullptr;
    std::deque<Arriving> arriving_;
    QString settings_;
    Mishap pending_ = Mishap::None;
    bool open_ = false;
    int answeredWell_ = 0; // bytes to come
    int answersLost_ = 0;  // likewise
    int sent_ = 0;
};
