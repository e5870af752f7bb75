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

    /// Sends the table and the scale of gPLS, and again for as long as the board refuses and the
    /// user retries; offline nothing is sent. Once taken, configuration and channels are read
    /// back. Only beside a standing machine do configuration and offset come on again; after a
    /// link failure all stays off. Errors of the reading are reported by a box.
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
