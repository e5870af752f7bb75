#pragma once

#include "support/gui/WholeWindow.h"
#include <deque>
#include <functional>
#include <QElapsedTimer>
#include <QTimer>

class Grid;
class QWidget;

/// The whole program with a set of a standard board, UNIT (addresses 70 to 219), and with a hand
/// at the modal views: what is to be done in one is told before it comes up.
class WholeProgram : public WholeWindow {
protected:
    explicit WholeProgram(int boardModel = haldenboard::SimulatedBoard::DefaultModel);
    ~WholeProgram() override;

    /// Runs the start-up, opens the browser on the sets and selects UNIT.
    void SetUp() override;

    /// Once the modal view of this object name is up and `ready` holds, does `act` in it. Views are
    /// taken in the order of the calls; one that does not come within 10 s fails the test.
    void WhenUp(
        const char* view, std::function<void(QWidget&)> act,
        std::function<bool()> ready = [] { return true; });
    /// In frmDataXfr: chooses the range, types it, presses OK.
    static void EnterRange(QWidget& view, int from, int to);
    static void ClickButton(QWidget& view, const char* name);

    void Press(const char* toolbarKey);
    Grid& Table();
    QString Cell(int row, int column);
    /// Types addresses into the table from its first row on.
    void TypeAddresses(const QStringList& addresses);
    /// Puts `count` bytes of this value into the board from an address on.
    void Fill(int address, int count, int value);
    int Byte(int address) const { return board_.Peek(static_cast<std::uint16_t>(address)); }
    QByteArray Content(const QString& path) const;

private:
    void Look();

    struct ModalAct {
        QString view;
        std::function<void(QWidget&)> act;
        std::function<bool()> ready;
    };
    std::deque<ModalAct> acts_;
    QTimer look_;
    QElapsedTimer waiting_;
};
