#pragma once

#include <QString>

/// Reads the limit switch set of this .hdn file into gPLS and does with it what views and jobs do:
/// writes both files' texts, builds the table for the board, compares. Checks what must hold of any
/// record that was read.
void ReadAndUsePLS(const QString& hdnFile, qint16 board);
