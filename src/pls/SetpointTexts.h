#pragma once

#include <QString>

/// Words of the setpoint editor. `channelName` is the numeric value of the channel entry: the
/// octal name in decimal look, 0 to 77.
namespace SetpointTexts {
inline constexpr char addTitle[] = "Add Setpoint";
inline constexpr char adjustEqualTitle[] = "Setpoint Adjust"; ///< also of a refusal by the board
inline constexpr char adjustOverlapTitle[] = "Adjust Setpoint";
inline constexpr char pulseTrainTitle[] = "Pulse Train";
inline constexpr char clearChannelTitle[] = "Clear Channel";
inline constexpr char clearAllTitle[] = "Clear ALL";
inline constexpr char setOffsetTitle[] = "Set Offset";
inline constexpr char offsetRefusedTitle[] = "Resolver Offset";

inline constexpr char equalEnds[] = "ON Setpoint cannot Equal OFF Setpoint";
inline constexpr char addOverlaps[] = "Setpoint overlaped with existing setpoint.";
inline constexpr char adjustOverlaps[] = "Setpoint overlap with existing setpoint.";
inline constexpr char unableToClear[] = "Unable to Clear Channel";
inline constexpr char clearAll[] =
    "You are about to Clear ALL PLS Channels.    \r\n\r\nDo you wish to continue?";
inline constexpr char setOffset[] =
    "You are about to Change the Resolver Offset.\r\n\r\nDo you wish to continue?";
inline constexpr char offsetRefused[] = "Unable to Successfully Set the Resolver Offset";

/// The board did not take a setpoint (warning icon): title addTitle or adjustEqualTitle.
QString UnableToProgramSetpoint(int channelName);
/// The board did not take a pulse train (warning icon).
QString UnableToProgramPulseTrain(int channelName);
/// Question before a channel is cleared (Yes, No, Cancel): "CH07" for 7, "CH10" for 10.
QString ClearChannelQuestion(int channelName);
} // namespace SetpointTexts
