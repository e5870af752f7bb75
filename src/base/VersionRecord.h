#pragma once

#include <QString>

/// What the program says of itself: the one place that the splash, the about view, the support
/// report and the application's own name take it from. Name, version and description are those of
/// the build; the copyright line is that of the licence file.
struct VersionRecord {
    QString title;         ///< "Quentor"
    int major = 0;         ///< from 0
    int minor = 0;         ///< from 0
    int revision = 0;      ///< from 0
    QString description;   ///< one sentence on what the program is
    QString company;       ///< who makes it
    QString product;       ///< the suite that it belongs to
    QString copyright;     ///< "Copyright (c) ..."
    QString licence;       ///< licence and the lack of a warranty, in one sentence
    QString warning;       ///< the hazard of writing to a machine
    QString technicalHelp; ///< whom to ask, and what to have at hand; lines parted by LF

    /// "1.0.0"
    QString Number() const;
    /// "Version 1.0.0"
    QString VersionText() const;
};

/// The record of this build.
const VersionRecord& ProgramVersion();
