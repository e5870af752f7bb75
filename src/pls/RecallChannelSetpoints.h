#pragma once

#include <functional>
#include <QString>

class Dialogs;
class RSComm;

/// Shows a caption where the user sees how far a recall is, and lets pending events run.
using RecallLabel = std::function<void(const QString& caption)>;

/// Reads what the board holds of a channel, 0 to 63, into its entry of gPLS.Chan, sorted by ON; one
/// placeholder if nothing is programmed. The board is asked edge by edge until it has gone round
/// once, from wherever its recall stands, or has given 2049 setpoints: one more than a cycle of
/// 4096 divisions has room for, so that a recall that never comes round ends. A link failure leaves
/// the entry as it was; an edge that the board does not give is reported in a box and leaves one
/// placeholder. Raises std::out_of_range for a channel beyond 63.
void RecallChannelSetpoints(qint16 Channel, RSComm& link, Dialogs& dialogs,
                            const RecallLabel& ProgressLabel = {});
