#pragma once

#include "link/programs/ProgramFixture.h"

/// Idents in the question before a dump.
struct BoardFacts {
    QString ident;
    QString revision;
    QString checksum;
};

/// A dump of the set "A" on a scripted port, online from the start. A test scripts the wire,
/// prepares the set, expects the boxes and then runs the dump.
class DumpTest : public WireTest {
protected:
    void SetUp() override { GoOnline(); }
    /// Writes the set and checks it; ident PUMP1, checksum 163, revision 1 unless `rev` says else.
    void Prepare(char board, const QByteArray& hex, const QByteArray& lcf = {});
    /// Scripts all up to program mode for a board with an empty ident block and no configuration.
    void StartDump();
    /// The question for PUMP1.
    void ExpectQuestion(const QString& boardName, const BoardFacts& inBoard, int answer);
    void ExpectBox(const QString& text, int style,
                   const QString& title = QStringLiteral("Program Download"));
    void ExpectComplete();
    void ExpectNotComplete();
    /// The link's alert after 5 seconds of silence, answered Cancel.
    void ExpectNoReplyAlert();
    /// The state after a dump that was refused before anything was written.
    void CheckUntouched(bool valid);
    /// The state after a dump that halted or failed on the way.
    void CheckHalted();

    QByteArray rev = "PUMP1:301\r\n";
};
