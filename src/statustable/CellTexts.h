#pragma once

#include <QString>

class OfflineData;

/// What the columns 2 to 5 of a row show.
struct CellTexts {
    QString decimal;
    QString hexadecimal;
    QString high; ///< bits of the high byte, empty where there is none
    QString low;  ///< bits of the low byte, or the one bit of a bit variable

    bool operator==(const CellTexts&) const = default;
};

/// The variable that is read from a board (its index) for an address text: a hexadecimal address as
/// its byte in decimal, a point as the byte behind it, anything else as it stands.
QString VariableToRead(const QString& address, qint16 board);

/// Texts for a value that the link read, in decimal; of a text that is no number those of 0.
CellTexts OnlineCellTexts(const QString& address, const QString& value);

/// Texts for an address out of the data file. Points have no place there and show "N/A".
CellTexts OfflineCellTexts(const QString& address, const OfflineData& data);
