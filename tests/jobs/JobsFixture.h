#pragma once

#include "base/ApplicationFolder.h"
#include "base/FileSystem.h"
#include "jobs/DataTransfer.h"
#include "jobs/JobProgress.h"
#include "link/RSComm.h"
#include "session/Globals.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPort.h"
#include "support/VirtualClock.h"
#include <functional>
#include <gtest/gtest.h>
#include <QStringList>
#include <QTemporaryDir>
#include <utility>
#include <vector>

/// A job's view of the busy view that writes down what it is told.
class RecordingProgress final : public JobProgress {
public:
    void ShowMessage(const QString& text) override { messages.append(text); }
    void ShowSecondLine(const QString& text) override { secondLines.append(text); }
    void SetRange(qint32 low, qint32 high) override {
        min = low;
        max = high;
    }
    void SetValue(qint32 now) override { values.push_back(now); }
    bool Cancelled() const override { return cancelled; }
    void ClearCancel() override { cancelled = false; }
    void Yield() override {
        ++yields;
        if (onYield)
            onYield(yields);
    }

    QStringList messages;
    QStringList secondLines;
    std::vector<qint32> values;
    qint32 min = -1;
    qint32 max = -1;
    bool cancelled = false;
    int yields = 0;
    std::function<void(int)> onYield; ///< told how many yields there were so far
};

/// One byte written to or read from the board.
struct BoardByte {
    int address;
    int value;
    bool operator==(const BoardByte&) const = default;
};

/// A link that is online over a scripted port, with files in a folder of its own.
class JobsFixture : public testing::Test {
protected:
    JobsFixture();
    ~JobsFixture() override;

    QString PathOf(const QString& name) const { return folder.filePath(name); }
    void WriteFile(const QString& path, const QByteArray& bytes) const;
    QByteArray FileBytes(const QString& path) const;

    /// The board takes a handshake and then these bytes, each echoed.
    void BoardTakes(const std::vector<BoardByte>& bytes);
    /// The board takes a handshake and then gives these bytes.
    void BoardGives(const std::vector<BoardByte>& bytes);
    /// The next byte and both resynchronisations get no answer; the user gives up.
    void LineIsCut();
    /// The bytes that have gone out since the last call, without the handshake of `modeByte`, as
    /// address and value. Fails the test if they are no writes.
    std::vector<BoardByte> TakeWritten();
    /// As many bytes from the address on as there are values.
    static std::vector<BoardByte> Run(int address, const std::vector<int>& values);

    void SetTransfer(qint16 mode, qint16 board, qint16 from, qint16 to);
    void Transfer() { transfer.TransferData(progress); }

    QTemporaryDir folder;
    ApplicationFolder application{folder.path()};
    VirtualClock clock;
    ScriptedDialogs dialogs;
    NoBusyDisplay busy;
    FileSystem files;
    ScriptedPort port{clock};
    RSComm link{dialogs, clock, busy, application};
    DataTransfer transfer{link, dialogs, files};
    RecordingProgress progress;
};
