#pragma once

#include <functional>
#include <QtGlobal>

/// Modal views that commands open, and the question at the end. Each is handed in by the
/// application as a function that shows the view and returns when it is closed; one that is empty
/// is not there.
struct ModalViews {
    std::function<void(qint16 mode)> frmDownloadProg; ///< 0 dumps a program, 1 uploads one
    std::function<void()> frmSplash;                  ///< shown once at the end of start-up
    std::function<void()> frmDataXfr;                 ///< asks for the range, runs the transfer
    std::function<bool()> mayClose; ///< asks about what would be lost; false keeps the program open
};
