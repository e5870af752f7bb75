#pragma once

#include <QStringList>
#include <vector>

/// What one expression of a C++ source says: its string and character literals in a row, as the
/// program sees them. Literals that stand side by side or are added are one text; where the code
/// puts something between two of them stands a variablePlace (TextList.h).
struct SourceText {
    int line = 0; ///< of its first literal, counted from 1
    QString text;
};

/// The texts of a source, in its order. An expression ends at a comma, a semicolon or a brace.
/// Comments and names of headers are no texts. Made for the sources of this house: it knows
/// escapes, raw strings and parted digits, not the preprocessor.
std::vector<SourceText> TextsOfSource(const QString& source);

/// The source files of this house below a folder of its root, "src" or "tests": paths from the
/// root on, sorted.
QStringList SourceFiles(const QString& folder);
/// Content of one of them; fails the test if it cannot be read.
QString ReadSource(const QString& path);
