#include "targetboard/CorrectiveAdvice.h"

namespace {
constexpr int lastCoCpuFault = 63;
constexpr int noCommunication = 66;
constexpr int calledByProgram = 69;
constexpr int noValidProgram = 92;
constexpr int programChecksum = 93;
constexpr int lastBoardFault = 122;

QString CoCpuAdvice() {
    return QStringLiteral("Replace CO-CPU board at \"CO-CPU Slot\" and try again.  "
                          "If fault persists, peplace K2012 processor board and try again.  "
                          "If fault persists, verify proper use of \"sfunc05/06/12\""
                          " in user program.");
}

QString CableAdvice() {
    return QStringLiteral("Verify connection of cable between computer \"COM\""
                          " port and target board \"PROG PORT\".  Verify "
                          "cable wiring and connectors.  If fault persists, replace target board "
                          "and/or try a different computer.");
}

QString CalledByProgramAdvice() {
    return QStringLiteral("User program executed an sfunc09() system fault function call.  See "
                          "User program for details on source of fault and corrective action.");
}

QString ProgramAdvice() {
    return QStringLiteral("Program is invalid.  Re-dump program to target board.  If fault "
                          "persists, verify cable connections between computer and target board.  "
                          "If fault persists, replace target board.");
}

QString ResetAdvice() {
    return QStringLiteral("Reset fault and try again.  If fault persists, replace target board "
                          "and try again.  See Halden Manual for more details.");
}
} // namespace

QString CorrectiveAdvice(int code) {
    if (code >= 1 && code <= lastCoCpuFault)
        return CoCpuAdvice();
    if (code == noCommunication)
        return CableAdvice();
    if (code == calledByProgram)
        return CalledByProgramAdvice();
    if (code == noValidProgram || code == programChecksum)
        return ProgramAdvice();
    if (code <= lastCoCpuFault || code > lastBoardFault)
        return QStringLiteral("None");
    return ResetAdvice();
}
