#pragma once

#include "pls/TimingEnablement.h"
#include <initializer_list>
#include <string>

/// States of the timing view, each reached by the operations that lead there, and marks that show
/// what is enabled: "x" enabled, "-" disabled, "." a frame that is not shown.
namespace TimingStates {
constexpr qint16 r6041 = 64;
constexpr qint16 r6021 = 67;
constexpr qint16 r6500 = 69;

enum class State {
    Opened,
    Offline,
    OfflineAgain,
    Connecting,
    UploadFailed,
    Moving,
    Stopped,
    StoppedChanged,
    UndoneByHand,
    StartedAgain,
    StartedWithChange,
    ChannelBusy,
    ResetBusy,
    OffsetBusy,
    OffsetSent,
};

/// The controls in a state; `checked` tells of both check boxes.
TimingEnablement InState(qint16 board, bool checked, State state);

/// All members of a family.
std::string Marks(const TimingEnablement& controls, TimingFamily family);
std::string Marks(const TimingEnablement& controls, std::initializer_list<TimingControl> singles);
std::string FrameMarks(const TimingEnablement& controls);
/// All flags, to tell whether an operation changed any.
std::string AllMarks(const TimingEnablement& controls);
} // namespace TimingStates
