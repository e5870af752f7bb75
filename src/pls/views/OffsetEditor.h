#pragma once

#include "pls/views/TimingSeams.h"

class ConfigEditor;
class TimingScreen;
struct TimingForm;
struct TimingState;

/// The resolver offset: a new zero of the machine's cycle.
class OffsetEditor {
public:
    OffsetEditor(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config);

    /// Asks, and then sets the offset so that the machine's present position reads as the number in
    /// the entry. A board that refuses leaves all controls off that the change concerns.
    void cmdSetOffset_Click();

private:
    bool Confirmed();
    void BeginSetOffset();
    bool SetInBoard(qint16 value);
    void EndSetOffset();

    TimingSeams seams_;
    TimingScreen& screen_;
    ConfigEditor& config_;
    TimingState& state_;
};
