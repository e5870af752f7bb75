#pragma once

#include "link/PortSettings.h"
#include <QString>

class Clock;
class MSComm;

/// How a test of a port ended.
enum class ProbeOutcome {
    NotOpened, ///< the port could not be opened; the trouble says why
    Lost,      ///< the device went away during the test; the trouble says what is known
    NoAnswer,  ///< nothing came back
    Strange,   ///< a byte came back that no board answers with
    Answered   ///< a board acknowledged
};

/// What a test of a port has found.
struct PortProbe {
    ProbeOutcome outcome = ProbeOutcome::NoAnswer;
    QString trouble;      ///< description of the error, for NotOpened and Lost
    int milliseconds = 0; ///< from the byte sent to the answer, 0 or more
    int answer = 0;       ///< the byte that came back, 0 to 255
};

/// Seconds within which a board must answer.
constexpr double probeReplyTime = 1.0;

/// Opens a port for a moment, sends one attention byte and waits for the answer. Attention leaves
/// a board out of any mode and changes nothing in it. `port` must be closed and is closed again,
/// with its number and settings as they were. Runs no handler and no timer.
PortProbe ProbePort(MSComm& port, const Clock& clock, const PortSettings& settings);

/// What happened, in plain words, for the user who stands at the cable.
QString ProbeText(const PortProbe& probe, const PortSettings& settings);
