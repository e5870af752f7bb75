#pragma once

#include "FuzzFile.h"
#include <QString>

/// Reads the limit switch set of this .hdn file into gPLS and does with it what views and jobs do:
/// writes both files' texts, builds the table for the board, compares. Checks what must hold of any
/// record that was read.
void ReadAndUsePLS(const QString& hdnFile, qint16 board);

/// A set of each layout that share one file, which holds the input.
class FuzzPLSSets {
public:
    /// `extension` of the file: "PCF" or "CHL".
    explicit FuzzPLSSets(const QString& extension);
    /// Puts the input into the file and reads and uses both sets.
    void Run(FuzzInput input) const;

private:
    FuzzFile file_;
    QString standardSet_;
    QString r6500Set_;
};
