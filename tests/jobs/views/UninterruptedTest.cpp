#include "base/Dialogs.h"
#include "base/ViewLoop.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "jobs/JobsFixture.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "support/BoardPort.h"
#include "support/VirtualAlarms.h"
#include <QApplication>
#include <QTimer>

namespace {
constexpr qint16 k2014 = 51;

// A view loop that is always hungry: each step reads a variable.
class HungryLoop final : public ViewLoop {
public:
    explicit HungryLoop(RSComm& link) : link_(link) {}
    Step TakeStep() override {
        ++steps;
        link_.RSRead(QStringLiteral("B200"));
        return Step::Worked;
    }
    int steps = 0;

private:
    RSComm& link_;
};

// A transfer while a tick that is due at every yield and a view loop wait for the line.
class Uninterrupted : public JobsFixture {
protected:
    Uninterrupted() {
        ConnectTo(boardPort);
        jobs.Register(WaitJob::TransferData, [this](JobProgress& p) { transfer.TransferData(p); });
        QObject::connect(&backgroundUpdate, &QTimer::timeout, &backgroundUpdate, [this] {
            ++ticks;
            link.FaultCode();
        });
        backgroundUpdate.start(0);
        viewLoops.Activate(loop);
    }

    // Turns of the event loop, and as much time as the loops rest while they are held.
    void LetTimePass() {
        for (int passed = 0; passed <= ViewLoopRunner::restTime; ++passed) {
            alarms.Pass(1);
            QCoreApplication::processEvents();
        }
    }
    // Both would run now, were there no job.
    void LetBothRun() {
        const int ticksBefore = ticks;
        const int stepsBefore = loop.steps;
        LetTimePass();
        EXPECT_GT(ticks, ticksBefore);
        EXPECT_GT(loop.steps, stepsBefore);
    }
    // Runs the job and gives the bytes that went to the board meanwhile.
    std::vector<int> BytesOfJob() {
        line.TakeLog(clock.MonotonicSeconds());
        runner.RunWaitJob(WaitJob::TransferData);
        std::vector<int> bytes;
        for (const haldenboard::LoggedByte& byte : line.TakeLog(clock.MonotonicSeconds()))
            if (byte.toBoard)
                bytes.push_back(byte.value);
        return bytes;
    }
    // What a download of `count` bytes of value 0 from the address on sends, and nothing else.
    static std::vector<int> Writes(int address, int count) {
        std::vector<int> bytes{0xFF, 2};
        for (int i = 0; i < count; ++i)
            bytes.insert(bytes.end(), {(address + i) / 256, (address + i) % 256, 0});
        return bytes;
    }

    haldenboard::SimulatedBoard board;
    haldenboard::Line line{board};
    BoardPort boardPort{clock, line};
    HungryLoop loop{link};
    int ticks = 0;
    WaitJobs jobs;
    QTimer backgroundUpdate;
    VirtualAlarms alarms{clock};
    ViewLoopRunner viewLoops{[](const ViewLoop&) { return false; }, alarms};
    WaitJobRunner runner{jobs, backgroundUpdate, clock, nullptr, alarms};
};
} // namespace

TEST_F(Uninterrupted, DownloadSendsItsOwnBytesAndNoOther) {
    LetBothRun();
    SetTransfer(XferMode::Download, k2014, 70, 219);
    const int ticksBefore = ticks;
    const int stepsBefore = loop.steps;
    const std::vector<int> bytes = BytesOfJob();
    EXPECT_EQ(bytes, Writes(70, 150));
    EXPECT_EQ(ticks, ticksBefore);
    EXPECT_EQ(loop.steps, stepsBefore);
    LetBothRun();
}

TEST_F(Uninterrupted, UploadSendsItsOwnBytesAndNoOther) {
    LetBothRun();
    link.RSWrite(QStringLiteral("B300"), QStringLiteral("1")); // so that the job has to shake hands
    SetTransfer(XferMode::Upload, k2014, 70, 219);
    std::vector<int> expected{0xFF, 1};
    for (int address = 70; address <= 219; ++address)
        expected.insert(expected.end(), {0, address});
    EXPECT_EQ(BytesOfJob(), expected);
    LetBothRun();
}

TEST_F(Uninterrupted, NothingElseGoesOutWhileABoxOfTheJobIsUp) {
    LetBothRun();
    WriteFile(QStringLiteral("values.txt"), "1\r\n-5\r\n2\r\n");
    gXferFile = PathOf(QStringLiteral("values.txt"));
    SetTransfer(XferMode::Datafile, 0, 0, 3);
    transfer.SetupFileDownload(QStringLiteral("B100"));
    dialogs.ExpectBox(QStringLiteral("Error:\rOnly Numerical Data Allowed."), MsgStyle::Critical,
                      QStringLiteral("ENTRY ALERT"), MsgAnswer::Ok, [this] { LetTimePass(); });
    EXPECT_EQ(BytesOfJob(), (std::vector<int>{0xFF, 2, 0, 100, 1, 0, 102, 2}));
    LetBothRun();
}
