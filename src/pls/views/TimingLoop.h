#pragma once

#include "base/ViewLoop.h"
#include "pls/views/TimingSeams.h"

class ChannelDisplay;
class ConfigEditor;
class TimingScreen;
struct TimingForm;
struct TimingState;

/// Watches the machine: speed, position and offset, one of them a step, round and round. It also
/// takes the view online and offline as the link's mode changes.
class TimingLoop final : public ViewLoop {
public:
    TimingLoop(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config,
               ChannelDisplay& channels);

    Step TakeStep() override;
    /// The view closes: nothing is known any more.
    void Stop();
    /// Everything off, as without a board.
    void EnterOffline();

private:
    enum class Reading { Speed, Position, Offset };

    Step OfflineStep();
    Step OnlineStep();
    bool MayRead() const;
    void EnterOnline();
    void ReadSpeed();
    void ReadPosition();
    void ReadOffset();
    void MachineStoppedNow();
    void MachineStartedNow();
    void ClearMachine();

    TimingSeams seams_;
    TimingScreen& screen_;
    ConfigEditor& config_;
    ChannelDisplay& channels_;
    TimingForm& form_;
    TimingState& state_;
    Reading next_ = Reading::Speed;
};
