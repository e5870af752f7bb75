#pragma once

#include <QString>

/// Fixed texts of the view.
namespace TargetBoardText {

/// What each description shows while the board cannot be reached.
inline QString Offline() {
    return QStringLiteral("Cannot Communicate with Target Board.");
}

inline QString NetworkAddComment() {
    return QStringLiteral("Each K2000 board connected to the K2000 Network must be assigned a "
                          "unique network address between 1 and 32.\r\n\r\n"
                          "System function sfunc19(); configures the K2516 serial communication "
                          "for the R6500 processor.");
}

inline QString TimeDateNote() {
    return QStringLiteral("Only the T7110 Display Module and the K2016 Communications CO-CPU board "
                          "are equipped with real time clocks.");
}

/// Prompt and title of the question before the faults are reset.
inline QString ResetPrompt() {
    return QStringLiteral("Target Board will be reinitialized.\r\n\r\nDo you wish to continue?");
}
inline QString ResetTitle() {
    return QStringLiteral("WARNING - Fault Code Reset!");
}

} // namespace TargetBoardText
