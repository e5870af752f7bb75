#pragma once

#include "base/ApplicationFolder.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "link/RSComm.h"
#include "session/CommMode.h"
#include "support/BoardPort.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <functional>
#include <ostream>
#include <vector>

/// One byte that was written into the board.
struct WrittenByte {
    int address;
    int value;
    bool operator==(const WrittenByte&) const = default;
};
void PrintTo(const WrittenByte& byte, std::ostream* out);

/// A mode display that keeps what it shows.
class NotedMode final : public ModeDisplay {
public:
    void ShowMode(bool online) override { shown = online; }
    bool shown = false;
};

/// A link over a simulated board with everything around it, in virtual time, and a folder with the
/// application folder "app" and the program set "PUMP.hdn".
class BoardUnderTest {
public:
    explicit BoardUnderTest(int model);

    /// What was written since the last call, from the bytes that reached the board.
    std::vector<WrittenByte> TakeWritten();
    /// Addresses that were read since the last call, likewise.
    std::vector<int> TakeRead();
    /// The cable is pulled out: from now on no answer comes. The next alert of the link is
    /// cancelled.
    void CutLine();
    void MendLine();
    /// Writes a file below the application folder.
    void WriteSupport(const QString& name, const QByteArray& content);
    void Poke(int address, int value);

    TestFolder files;
    ApplicationFolder folder;
    QString hdnFile;
    VirtualClock clock;
    NoBusyDisplay busy;
    ScriptedDialogs dialogs;
    haldenboard::SimulatedBoard board;
    haldenboard::Line line;
    BoardPort port;
    RSComm link;
    NotedMode display;
    CommMode mode;

private:
    std::vector<WrittenByte> Take(bool writes);

    std::size_t writtenSeen_ = 0;
    std::size_t readSeen_ = 0;
};
