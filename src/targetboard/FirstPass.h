#pragma once

#include "targetboard/FaultCodes.h"
#include <array>
#include <QString>

class ApplicationFolder;
class RSComm;
struct TargetBoardShown;

/// The first read of a board after going online, cut into pieces of one read each: the six fault
/// addresses, the descriptions and the advice, the ident of the program. A link that fails on the
/// way shows up as the code of a missing cable.
class FirstPass {
public:
    /// All must outlive the object.
    FirstPass(RSComm& link, const ApplicationFolder& folder, TargetBoardShown& shown);

    /// Starts from the beginning, also in the middle of a pass.
    void Begin();
    /// Gives the pass up.
    void Drop() { piece_ = pieceCount; }
    bool Runs() const { return piece_ < pieceCount; }
    /// Does one piece. Raises as DescriptionInCodeFile.
    void TakeStep();

private:
    static constexpr int faultFilePiece = FaultPosition::Count;
    static constexpr int slotPiece = faultFilePiece + 1;
    static constexpr int advicePiece = slotPiece + 1;
    static constexpr int firstIdentPiece = advicePiece + 1;
    static constexpr int pieceCount = firstIdentPiece + 10;

    void ReadFaultAddress(int position);
    QString ReadCode(int position);
    void ShowDescription(int position, const QString& file);
    void ReadSlotAgain();
    void ShowAdviceAndCommErrors();
    void ReadIdent(int offset);

    RSComm& link_;
    const ApplicationFolder& folder_;
    TargetBoardShown& shown_;
    std::array<QString, FaultPosition::Count> codes_;
    int piece_ = pieceCount;
};
