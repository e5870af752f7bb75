#pragma once

#include <QtGlobal>

class EntryUpDown;
class NumericEntries;
class QLabel;
class QLineEdit;
class QWidget;
struct TargetBoardShown;

/// The controls of one set-up entry: lblSetupDesc, txtSetup and updSetup of one index.
class SetupControls {
public:
    /// Makes the controls of entry 0 to 7, for a page to lay out, and takes them in among the
    /// entries, which must outlive them.
    SetupControls(int index, NumericEntries& entries);

    QLabel* Label() const { return label_; }
    /// Text box and arrows side by side.
    QWidget* Pair() const { return pair_; }
    /// Brings label, text and arrows up to date; a text that the user is in stays.
    void Show(const TargetBoardShown& shown);

private:
    int index_;
    NumericEntries& entries_;
    QLabel* label_;
    QWidget* pair_;
    QLineEdit* box_;
    EntryUpDown* upDown_;
};
