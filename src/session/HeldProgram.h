#pragma once

#include "session/Globals.h"

/// Makes a program set the one in use (gHdnFile) for as long as it lives, then gives gHdnFile its
/// value back. A set that the user selects meanwhile stays: it is what the browser shows as
/// selected.
class HeldProgram {
public:
    explicit HeldProgram(const QString& hdnFile) : before_(gHdnFile), held_(hdnFile) {
        gHdnFile = held_;
    }
    ~HeldProgram() {
        if (gHdnFile == held_)
            gHdnFile = before_;
    }
    HeldProgram(const HeldProgram&) = delete;
    HeldProgram& operator=(const HeldProgram&) = delete;

private:
    QString before_;
    QString held_;
};
