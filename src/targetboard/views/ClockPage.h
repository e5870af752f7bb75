#pragma once

#include "targetboard/views/SetupControls.h"
#include <QFrame>
#include <vector>

class QGridLayout;
class QLabel;
class QPushButton;

/// The page of the real time clock, fraTargetBoard(3).
class ClockPage final : public QFrame {
public:
    /// Makes the page; its entries join `entries`, which must outlive it.
    explicit ClockPage(NumericEntries& entries, QWidget* parent = nullptr);

    /// Brings board clock, computer clock and buttons up to date.
    void Show(const TargetBoardShown& shown);
    QPushButton* cmdSetToCurrTime() const { return cmdSetToCurrTime_; }
    QPushButton* cmdSetToCurrDate() const { return cmdSetToCurrDate_; }

private:
    // Two rows of the page: the clock of the board above, that of the computer below.
    struct Half {
        int row;
        QLabel* boardLabel;
        QLabel* computerLabel;
        QPushButton* button;
        int firstEntry;
        QString computerCaption;
    };
    void AddHalf(QGridLayout& grid, const Half& half, NumericEntries& entries);
    QWidget* MakeNotes();

    std::vector<SetupControls> parts_;
    QLabel* lblTargetBoardTime_;
    QLabel* lblTargetBoardDate_;
    QLabel* lblCurrTime_;
    QLabel* lblCurrDate_;
    QPushButton* cmdSetToCurrTime_;
    QPushButton* cmdSetToCurrDate_;
};
