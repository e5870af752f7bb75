#include "base/RunTimeError.h"
#include "pls/jobs/PLSJobsFixture.h"
#include "support/NoProgress.h"

// The box of a limit switch download that raises: nothing in the job itself does.

namespace {
// A display that cannot show a message.
class FailingProgress final : public NoProgress {
public:
    void ShowMessage(const QString&) override { throw RunTimeError(ErrorNumber::DeviceIOError); }
};

class JobBoxes : public PLSJobsFixture {};
} // namespace

TEST_F(JobBoxes, OfALimitSwitchDownloadThatRaises) {
    FailingProgress failing;
    dialogs.ExpectBox(QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error"),
                      MsgStyle::Exclamation, QStringLiteral("PLS Channel Write"), MsgAnswer::Ok);
    jobs.DownloadPLSChannels(failing);
}
