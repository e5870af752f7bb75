#pragma once

#include <array>
#include <QString>

/// The addresses at which a board keeps its fault and communication error codes, and what the
/// status page makes of their values.

/// Places of the fault address list; also the indexes of the labels and text boxes that show it.
namespace FaultPosition {
constexpr int CurrentFault = 0;
constexpr int LastFault = 1;
constexpr int CoCpuSlot = 2;
constexpr int CorrectiveAction = 3; ///< the last fault once more, for the advice
constexpr int CurrentCommError = 4;
constexpr int LastCommError = 5;
constexpr int Count = 6;
} // namespace FaultPosition

/// Variables by position, in the order in which they are read.
constexpr std::array<const char16_t*, FaultPosition::Count> faultAddresses{
    u"B8176", u"B8177", u"B8175", u"B8177", u"B8179", u"B8178"};

/// Variables that a reset of the faults sets to 0, in this order: the current fault goes last.
constexpr std::array<const char16_t*, 4> faultResetAddresses{u"B8178", u"B8179", u"B8177",
                                                             u"B8176"};

/// Code that stands for a read that failed: the boards' own code for no communication with the
/// computer, 42H.
inline QString FailedReadCode() {
    return QStringLiteral("42");
}

/// Code text of a value in decimal, as RSRead gives it: upper-case hexadecimal of two digits at
/// least. "10" gives "0A"; a text without a number gives "00".
QString FaultCodeText(const QString& value);

/// Whether a code lets the faults be reset: its text, read as a decimal number up to its first
/// letter, is above 0. So "10" does, and "00" and "A0" do not.
bool CodeEnablesReset(const QString& code);

/// Label of a position, 0 to 5, for a code text: "Current Fault: Code = 42H", "CO-CPU Slot: 10".
QString FaultLabelText(int position, const QString& code);
/// Label of the CO-CPU slot for a value in decimal.
QString SlotLabelText(const QString& value);
