#pragma once

#include "board/PseudoTerminal.h"

namespace haldenboard {

/// How long a byte takes through a pseudo-terminal to a host that sleeps and answers at once, and
/// the answer back: time that the system spends and no line would. A busy moment is not taken for
/// the rule: of several tries the lower quartile counts, so a paced line is rather slow than fast.
///
/// Only for a terminal that no host has opened yet; takes some 15 milliseconds.
/// @return seconds for both ways together, 0 to 60e-6; 0 if it cannot be measured
double MeasureTurnaround(PseudoTerminal& terminal);

} // namespace haldenboard
