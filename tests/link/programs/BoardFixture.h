#pragma once

#include "link/programs/ProgramFixture.h"
#include "support/BoardPort.h"
#include <memory>

/// A program test against the simulated board of a model.
class BoardTest : public ProgramTest {
protected:
    /// Puts a board of this model (a board index, 49 to 69) on the line and goes online.
    void ConnectBoard(int model);
    void GoOnline();
    /// Fills the program image of the board with bytes of a row that `seed` begins.
    void FillImage(unsigned seed);
    /// The ident block of the board.
    void PokeIdent(const QByteArray& eightBytes, int checksum, int revision);
    QByteArray Memory(int address, int length) const;
    /// The box at the end of a transfer.
    void ExpectBox(const QString& text, int style, const QString& title);
    void ExpectUploadComplete();
    /// Names the set "UP" of this board index and uploads it from the board.
    void Upload(int index);

    std::unique_ptr<haldenboard::SimulatedBoard> board;
    std::unique_ptr<haldenboard::Line> line;
    std::unique_ptr<BoardPort> port;
};
