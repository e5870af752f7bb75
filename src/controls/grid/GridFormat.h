#pragma once

#include <QString>
#include <vector>

/// One column of a format string.
struct GridColumnFormat {
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    QString head; ///< text of the first fixed row, empty where the format gives none
};

/// Reads a format string: one part a column, parted by "|", each beginning with "<" (left), "^"
/// (centre) or ">" (right) and going on with the text of the head. "^|<|^" is three columns
/// without heads.
std::vector<GridColumnFormat> ReadGridFormat(const QString& format);
