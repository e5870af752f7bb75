#pragma once

#include "base/Dialogs.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "jobs/RecordingProgress.h"
#include "pls/PLSJobs.h"
#include "session/Globals.h"
#include "support/BoardPort.h"
#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>
#include <memory>

namespace BoardIndex {
constexpr int K2041 = 55;
constexpr int R6041 = 64;
constexpr int R6500 = 69;
} // namespace BoardIndex

/// A link with a simulated limit switch board at the other end, in virtual time, and the files of
/// a program set, CAMS, in a folder of its own.
class PLSJobsFixture : public testing::Test, protected LinkUnderTest {
protected:
    explicit PLSJobsFixture(int boardIndex = BoardIndex::R6500);
    ~PLSJobsFixture() override;

    /// A new board in its delivery state takes the place of the one before; the link is online.
    void ConnectBoard(int boardIndex);
    /// The board gets so many channels, and this scale factor, 2 or more. R6500 only.
    void Configure(int channels, int scaleFactor);
    /// Programs a channel of the board as the link does.
    void Program(int channel, const SetpointList& setpoints);
    /// What the board holds of a channel, as edges on its side of the line.
    std::vector<haldenboard::PlsEdge> Edges(int channel) const {
        return board->Pls().Edges(channel);
    }

    /// From the nth reply from now on nothing comes back.
    void CutLineAtReply(int nth);
    /// The nth reply from now on has another value.
    void SpoilReply(int nth);
    /// Bytes that the board has sent since it was connected.
    int RepliesSoFar() const;
    /// The next box is that of a dead line; the user gives up.
    void ExpectDeadLine() { ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel); }

    QString SetFile(const char* extension) const {
        return directory.filePath(QStringLiteral("CAMS.") + QLatin1String(extension));
    }
    void WriteSetFile(const char* extension, const QByteArray& content) const;
    QByteArray SetFileContent(const char* extension) const;

    std::unique_ptr<haldenboard::SimulatedBoard> board;
    std::unique_ptr<haldenboard::Line> line;
    std::unique_ptr<BoardPort> boardPort;
    PLSJobs jobs{link, dialogs};
    RecordingProgress progress;
};
