#pragma once

#include "targetboard/FaultCodes.h"
#include <array>
#include <QFrame>

class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
struct TargetBoardShown;

/// The page of fault and communication error codes, fraTargetBoard(0).
class FaultPage final : public QFrame {
public:
    explicit FaultPage(QWidget* parent = nullptr);

    /// Brings codes, descriptions, advice and the button up to date.
    void Show(const TargetBoardShown& shown);
    QPushButton* cmdResetFaults() const { return cmdResetFaults_; }

private:
    void AddPosition(QBoxLayout& form, int position, int lines);

    std::array<QLabel*, FaultPosition::Count> lblTargetBoard_{};
    std::array<QPlainTextEdit*, FaultPosition::Count> txtTargetBoard_{}; // null for the slot
    QPushButton* cmdResetFaults_ = nullptr;
};
