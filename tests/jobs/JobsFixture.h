#pragma once

#include "base/FileSystem.h"
#include "jobs/DataTransfer.h"
#include "jobs/RecordingProgress.h"
#include "session/Globals.h"
#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>
#include <vector>

/// One byte written to or read from the board.
struct BoardByte {
    int address;
    int value;
    bool operator==(const BoardByte&) const = default;
};

/// A link that is online over a scripted port, with files in a folder of its own.
class JobsFixture : public testing::Test, protected LinkUnderTest {
protected:
    JobsFixture();
    ~JobsFixture() override;

    QString PathOf(const QString& name) const { return directory.filePath(name); }

    /// Takes the link from the scripted port to another one.
    void ConnectTo(MSComm& other);
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

    QString fileName = QStringLiteral("Press.ldt"); ///< of gXferFile, below the folder
    FileSystem files;
    DataTransfer transfer{link, dialogs, files};
    RecordingProgress progress;
};
