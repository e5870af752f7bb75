#pragma once

#include "targetboard/ProgramIdent.h"
#include <array>
#include <QFrame>

class QGroupBox;
class ValueLabel;
struct TargetBoardShown;

/// The page of the program ident in the board and on disk, fraTargetBoard(1).
class IdentPage final : public QFrame {
public:
    explicit IdentPage(QWidget* parent = nullptr);

    /// Brings both idents up to date. Bytes that are no characters show as blanks.
    void Show(const TargetBoardShown& shown);

private:
    template <std::size_t count>
    static QGroupBox* IdentFrame(const QString& title, const char* name,
                                 std::array<ValueLabel*, count>& labels);

    std::array<ValueLabel*, IdentLabel::InPLCCount> lblRevIdentInPLC_{};
    std::array<ValueLabel*, IdentLabel::OnDiskCount> lblRevIdentOnDisk_{};
};
