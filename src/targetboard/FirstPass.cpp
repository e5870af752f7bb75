#include "targetboard/FirstPass.h"

#include "base/ApplicationFolder.h"
#include "base/NumberReader.h"
#include "link/RSComm.h"
#include "targetboard/CodeFile.h"
#include "targetboard/CorrectiveAdvice.h"
#include "targetboard/TargetBoardShown.h"

namespace {
QString FaultFile() {
    return QStringLiteral("support/FaultErrCodes.txt");
}

QString CommErrorFile() {
    return QStringLiteral("support/CommErrCodes.txt");
}

std::size_t Index(int position) {
    return static_cast<std::size_t>(position);
}
} // namespace

FirstPass::FirstPass(RSComm& link, const ApplicationFolder& folder, TargetBoardShown& shown)
    : link_(link), folder_(folder), shown_(shown) {
    static_assert(pieceCount == firstIdentPiece + BoardIdent::length);
}

void FirstPass::Begin() {
    piece_ = 0;
    shown_.controls.GoOnline();
}

void FirstPass::TakeStep() {
    if (piece_ < faultFilePiece) {
        ReadFaultAddress(piece_);
    } else if (piece_ == faultFilePiece) {
        ShowDescription(FaultPosition::CurrentFault, FaultFile());
        ShowDescription(FaultPosition::LastFault, FaultFile());
    } else if (piece_ == slotPiece) {
        ReadSlotAgain();
    } else if (piece_ == advicePiece) {
        ShowAdviceAndCommErrors();
    } else {
        ReadIdent(piece_ - firstIdentPiece);
    }
    ++piece_;
    if (!Runs())
        shown_.controls.EndFirstPass(link_.CommError());
}

void FirstPass::ReadFaultAddress(int position) {
    QString& code = codes_[Index(position)];
    code = ReadCode(position);
    const bool isSlot = position == FaultPosition::CoCpuSlot;
    if (!isSlot && !link_.CommError() && CodeEnablesReset(code))
        shown_.controls.SetResetFaults(true);
    if (!isSlot || shown_.controls.CoCpuSlotVisible())
        shown_.lblTargetBoard[Index(position)] = FaultLabelText(position, code);
}

QString FirstPass::ReadCode(int position) {
    QString value;
    if (!link_.CommError())
        value = link_.RSRead(QString::fromUtf16(faultAddresses[Index(position)]));
    return link_.CommError() ? FailedReadCode() : FaultCodeText(value);
}

void FirstPass::ShowDescription(int position, const QString& file) {
    const auto description = DescriptionInCodeFile(folder_.Path(file), codes_[Index(position)]);
    if (description)
        shown_.txtTargetBoard[Index(position)] = *description;
}

// A read that failed gives 0, which is no value of the board.
void FirstPass::ReadSlotAgain() {
    if (!shown_.controls.CoCpuSlotVisible() || link_.CommError())
        return;
    constexpr int slot = FaultPosition::CoCpuSlot;
    const QString value = link_.RSRead(QString::fromUtf16(faultAddresses[Index(slot)]));
    if (!link_.CommError())
        shown_.lblTargetBoard[Index(slot)] = SlotLabelText(value);
}

void FirstPass::ShowAdviceAndCommErrors() {
    constexpr int action = FaultPosition::CorrectiveAction;
    const auto code = static_cast<int>(HexNumberValue(codes_[Index(action)]));
    shown_.txtTargetBoard[Index(action)] = CorrectiveAdvice(code);
    ShowDescription(FaultPosition::CurrentCommError, CommErrorFile());
    ShowDescription(FaultPosition::LastCommError, CommErrorFile());
}

void FirstPass::ReadIdent(int offset) {
    if (link_.CommError())
        return;
    const QString value = link_.RSRead(BoardIdentAddress(offset));
    if (!link_.CommError())
        TakeIdentByte(shown_.lblRevIdentInPLC, offset, value);
}
