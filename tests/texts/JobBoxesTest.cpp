#include "base/RunTimeError.h"
#include "pls/jobs/PLSJobsFixture.h"

// The box of a limit switch download that raises: nothing in the job itself does.

namespace {
// A display that cannot show a message.
class FailingProgress final : public JobProgress {
public:
    void ShowMessage(const QString&) override { throw RunTimeError(ErrorNumber::DeviceIOError); }
    void ShowSecondLine(const QString&) override {}
    void SetRange(qint32, qint32) override {}
    void SetValue(qint32) override {}
    bool Cancelled() const override { return false; }
    void ClearCancel() override {}
    void Yield() override {}
};

class JobBoxes : public PLSJobsFixture {};
} // namespace

TEST_F(JobBoxes, OfALimitSwitchDownloadThatRaises) {
    FailingProgress failing;
    dialogs.ExpectBox(QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error"),
                      MsgStyle::Exclamation, QStringLiteral("PLS Channel Write"), MsgAnswer::Ok);
    jobs.DownloadPLSChannels(failing);
}
