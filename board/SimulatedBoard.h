#pragma once

#include "board/BoardModel.h"
#include "board/DemoMachine.h"
#include "board/MemoryDialogue.h"
#include "board/PlsDialogue.h"
#include "board/PlsUnit.h"
#include "board/Resolver.h"
#include "board/WireBytes.h"

#include <cstdint>
#include <optional>

namespace haldenboard {

/// A programmable controller or limit switch board as its serial line shows it: a state machine
/// that takes one byte at a time and has no clock of its own.
///
/// After power-up it hears nothing but attention. Attention (0xFF), wherever it counts as such, is
/// answered 0x55 and leaves the board waiting for a command. A command it does not know is refused
/// with 0xAA, and so are the limit switch commands on a controller.
class SimulatedBoard {
public:
    /// A K2014 controller.
    static constexpr int DefaultModel = 51;

    /// @param model LowestModel to HighestModel
    /// @throws std::invalid_argument for any other model
    explicit SimulatedBoard(int model = DefaultModel);
    SimulatedBoard(const SimulatedBoard&) = delete;
    SimulatedBoard& operator=(const SimulatedBoard&) = delete;

    const BoardModel& Model() const { return model_; }

    uint8_t Peek(uint16_t address) const { return memory_[address]; }
    void Poke(uint16_t address, uint8_t value) { memory_[address] = value; }

    /// Takes one whole byte from the line and gives the answer, if there is one.
    std::optional<Reply> Receive(uint8_t byte);

    /// Lets the machine run up to `now` (seconds). Time never goes back: an earlier `now` than the
    /// last one does nothing.
    void AdvanceTo(double now);

    /// Off and on again: the mode, what was staged of a configuration and the places of the recalls
    /// are lost; memory, configuration and channels stay, being kept by battery.
    void Reset();

    /// Whether program mode stops the machine: outputs off, shaft standing.
    bool InProgramMode() const;

    /// Turns the machine's shaft.
    /// @param rpm turns a minute, 0 to 65535
    void SetSpeed(int rpm);

    /// How often a ready poll is answered "busy" after each command that works on the board.
    /// @param count 0 or more; 0 from the start
    void SetBusyAnswers(int count) { plsDialogue_.SetBusyAnswers(count); }

    /// Starts a machine for the board to run, at the time last handed in. A limit switch board with
    /// nothing programmed also gets some channels, and its shaft turns if it stood.
    void StartDemo();
    void StopDemo() { demo_.reset(); }

    const PlsUnit& Pls() const { return pls_; }

private:
    enum class Ear { Deaf, ForCommand, InMemory, InPls };

    bool AttentionHere() const;
    Reply OnAttention();
    Reply OnCommand(uint8_t byte);
    void Listen(Ear ear);

    BoardModel model_;
    Memory memory_{};
    PlsUnit pls_;
    Resolver resolver_;
    MemoryDialogue memoryDialogue_;
    PlsDialogue plsDialogue_;
    std::optional<DemoMachine> demo_;
    Ear ear_ = Ear::Deaf;
    double now_ = 0;
};

} // namespace haldenboard
