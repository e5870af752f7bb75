#include "base/FileSystem.h"
#include "FuzzFile.h"
#include "FuzzSession.h"
#include "HostilePort.h"
#include "jobs/DataTransfer.h"
#include "jobs/DownloadDatafile.h"
#include "jobs/JobRunner.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "support/NoProgress.h"
#include <array>

// The user's text file of numbers, all the way into a board that answers well.

namespace {
constexpr int board = 52;
constexpr int firstAddress = 32000; // words and double words soon reach the end of 16 bits

class TransferAlone final : public JobRunner {
public:
    explicit TransferAlone(DataTransfer& transfer) : transfer_(transfer) {}
    void RunWaitJob(qint16) override {
        NoProgress progress;
        transfer_.TransferData(progress);
    }

private:
    DataTransfer& transfer_;
};

class NoModeDisplay final : public ModeDisplay {
public:
    void ShowMode(bool) override {}
};

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.txt"));
    static const std::array starts{QStringLiteral("B32000"), QStringLiteral("W32000"),
                                   QStringLiteral("D32000")};
    file.Put(input);
    // A value that does not fit is refused by a box: no more boxes than values, and a few.
    FuzzLink session(nullptr, static_cast<int>(input.size()) + 10);
    HostilePort port(session.clock, board);
    port.AnswerWell();
    const FileSystem files;
    NoModeDisplay display;
    CommMode mode(session.link, port, display);
    DataTransfer transfer(session.link, session.dialogs, files);
    TransferAlone jobs(transfer);
    DownloadDatafile command(session.link, mode, session.dialogs, files, transfer, jobs);
    session.dialogs.AnswerOpen(file.Path());
    session.dialogs.AnswerInput(starts[input.size() % starts.size()]);
    gHdnFile = file.Path();
    const auto before = port.Board().Peek(firstAddress - 1);
    command.mnuFileDownloadFile_Click();
    Require(port.Board().Peek(firstAddress - 1) == before, "nothing is written before the start");
    Require(!session.link.CommError(), "a board that answers well is never given up");
}

const RegisteredTarget target("datafile", Run);
} // namespace
