#include "pls/views/ConfigReset.h"

#include "base/Dialogs.h"
#include "link/RSComm.h"
#include "pls/PLSConfigTable.h"
#include "pls/views/ChannelDisplay.h"
#include "pls/views/ConfigEditor.h"
#include "pls/views/TimingScreen.h"
#include "session/Globals.h"

ConfigReset::ConfigReset(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config,
                         ChannelDisplay& channels)
    : seams_(seams), screen_(screen), config_(config), channels_(channels) {}

void ConfigReset::cmdResetPLSConfig_Click() {
    const BusyHandler busy(screen_);
    screen_.DisableConfigControls();
    if (seams_.link.OnlineMode()) {
        const Sent sent = SendUntilTaken();
        if (sent == Sent::Taken)
            ReadBack();
        if (sent == Sent::Refused)
            config_.ShowRefusedConfig();
        if (seams_.link.CommError() || !screen_.State().running)
            return;
    }
    if (!screen_.State().motion.MachineStopped())
        return;
    config_.EnableConfigControls();
    screen_.EnableOffsetControls();
}

ConfigReset::Sent ConfigReset::SendUntilTaken() {
    do {
        const PLSSentTable table = BuildPLSConfigArray(screen_.State().boardIndex);
        const bool taken = seams_.link.PLSConfigDownload(table, gPLS.ScaleFactor);
        if (seams_.link.CommError())
            return Sent::LinkFailed;
        if (taken)
            return Sent::Taken;
    } while (UserRetries());
    return Sent::Refused;
}

bool ConfigReset::UserRetries() {
    return seams_.dialogs.MsgBox(QStringLiteral("Unable to Reset PLS Configuration Parameters"),
                                 MsgStyle::RetryCancelQuestion,
                                 QStringLiteral("PLS Config Download")) == MsgAnswer::Retry;
}

void ConfigReset::ReadBack() {
    screen_.State().gPLSUploadComplete = false;
    channels_.ReadBoardConfig();
    channels_.UploadChannels();
}
