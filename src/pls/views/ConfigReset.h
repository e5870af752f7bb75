#pragma once

#include "pls/views/TimingSeams.h"

class ChannelDisplay;
class ConfigEditor;
class TimingScreen;

/// Sends the configuration that the entries hold into the board and reads all of it back.
class ConfigReset {
public:
    ConfigReset(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config,
                ChannelDisplay& channels);

    void cmdResetPLSConfig_Click();

private:
    enum class Sent { Taken, Refused, LinkFailed };
    Sent SendUntilTaken();
    bool UserRetries();
    void ReadBack();

    TimingSeams seams_;
    TimingScreen& screen_;
    ConfigEditor& config_;
    ChannelDisplay& channels_;
};
