#include "TimingStates.h"

namespace TimingStates {
namespace {
// The operations in the order in which the view runs them.
class Script {
public:
    Script(qint16 board, bool checked, State state)
        : board_(board), checked_(checked), state_(state) {
        controls_.SelectBoard(board, false);
    }

    TimingEnablement Reach() {
        switch (state_) {
        case State::Opened:
            return controls_;
        case State::Offline:
            controls_.EnterOffline();
            return controls_;
        case State::Connecting:
        case State::UploadFailed:
            controls_.EnterOffline();
            controls_.BeginOnline();
            controls_.DisableChannelControls();
            if (state_ == State::UploadFailed)
                controls_.EnterOffline();
            return controls_;
        default:
            GoOnline();
            controls_.AfterTick(false, false);
            ReachOnline();
            return controls_;
        }
    }

private:
    void GoOnline() {
        controls_.EnterOffline();
        controls_.BeginOnline();
        controls_.DisableChannelControls();
        controls_.EnableChannelControls();
        controls_.FinishOnline();
    }

    void FitOptions() {
        if (board_ == r6500)
            controls_.FitChannelOptions(OptionsForScale(360));
    }

    void Stop() {
        controls_.JustStopped(checked_, checked_);
        FitOptions();
        controls_.AfterTick(true, false);
    }

    void ReachOnline() {
        if (state_ == State::Moving)
            return;
        Stop();
        ReachFromStopped();
    }

    void ReachFromStopped() {
        switch (state_) {
        case State::OfflineAgain:
            return controls_.EnterOffline();
        case State::StartedAgain:
            controls_.JustStarted();
            return controls_.AfterTick(false, false);
        case State::ChannelBusy:
            return controls_.DisableChannelControls();
        case State::OffsetBusy:
            return controls_.BeginSetOffset();
        case State::OffsetSent:
            controls_.BeginSetOffset();
            controls_.EndSetOffset(checked_, checked_);
            return FitOptions();
        case State::StoppedChanged:
        case State::UndoneByHand:
        case State::StartedWithChange:
        case State::ResetBusy:
            controls_.AfterTick(true, true);
            return ReachFromChanged();
        default:
            return;
        }
    }

    void ReachFromChanged() {
        if (state_ == State::UndoneByHand)
            controls_.AfterTick(true, false);
        if (state_ == State::ResetBusy)
            controls_.DisableConfigControls();
        if (state_ == State::StartedWithChange) {
            controls_.JustStarted();
            controls_.AfterTick(false, true);
        }
    }

    qint16 board_;
    bool checked_;
    State state_;
    TimingEnablement controls_;
};
} // namespace

TimingEnablement InState(qint16 board, bool checked, State state) {
    return Script(board, checked, state).Reach();
}

std::string Marks(const TimingEnablement& controls, TimingFamily family) {
    std::string marks;
    for (int index = 0; index < FamilySize(family); ++index)
        marks += controls.IsEnabled(family, index) ? 'x' : '-';
    return marks;
}

std::string Marks(const TimingEnablement& controls, std::initializer_list<TimingControl> singles) {
    std::string marks;
    for (const TimingControl control : singles)
        marks += controls.IsEnabled(control) ? 'x' : '-';
    return marks;
}

std::string FrameMarks(const TimingEnablement& controls) {
    std::string marks = Marks(controls, TimingFamily::fraTmg);
    for (int frame = 0; frame < FamilySize(TimingFamily::fraTmg); ++frame) {
        if (!controls.FrameVisible(frame))
            marks[static_cast<std::size_t>(frame)] = '.';
    }
    return marks;
}

std::string AllMarks(const TimingEnablement& controls) {
    std::string marks = FrameMarks(controls);
    for (int family = 0; family < static_cast<int>(TimingFamily::Count); ++family)
        marks += Marks(controls, static_cast<TimingFamily>(family)) + ' ';
    for (int control = 0; control < static_cast<int>(TimingControl::Count); ++control)
        marks += Marks(controls, {static_cast<TimingControl>(control)});
    return marks;
}
} // namespace TimingStates
