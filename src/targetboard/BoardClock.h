#pragma once

#include <array>
#include <QDate>
#include <QString>
#include <QTime>

/// The computer's clock as the clock page shows it and as it goes into a board's real time clock.

/// One write to a board: variable and value in decimal.
struct BoardWrite {
    QString address;
    QString value;
};

/// Hour, minute and second in that order: the writes that set the board's time.
std::array<BoardWrite, 3> TimeWrites(QTime time);
/// Month, day of the month and the last two digits of the year in that order: the writes that set
/// the board's date. 2017 is written as 17.
std::array<BoardWrite, 3> DateWrites(QDate date);

/// "08 : 05 : 09".
QString CurrTimeText(QTime time);
/// Month, day and year: "03 - 09 - 2026".
QString CurrDateText(QDate date);
