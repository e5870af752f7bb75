#pragma once

#include <optional>
#include <QString>

/// Where a datafile goes: the first value to the address, the others behind it.
struct DatafileStart {
    QChar width;    ///< 'B' bytes, 'W' words, 'D' double words
    qint16 address; ///< of the first value, 32 or more
    qint16 step;    ///< bytes that one value takes: 1, 2 or 4
};

/// What a user typed as start, read; or why it is refused.
struct DatafileStartReading {
    std::optional<DatafileStart> start;
    QString refusal; ///< empty if there is a start
};

/// Reads an upper-case start text such as "B100", "W34" or "D100". The letter is searched for in
/// the whole text, B before W before D, and each one counts as a 0 of the number. There is no
/// upper limit but that of 16 bits: raises Overflow (6) beyond it.
DatafileStartReading ReadDatafileStart(const QString& startingAdd);
