#pragma once

#include <array>
#include <QString>

/// One number of a board that the network and clock pages show and set. The addresses are the
/// board's; its network has 32 places, and its clock counts hours of 24, months and days from 1 and
/// years of a century.
struct SetupEntry {
    const char16_t* address; ///< variable, one byte
    const char16_t* label;   ///< caption of its label
    int min;                 ///< lowest value that can be entered
    int max;                 ///< highest value that can be entered
};

constexpr int setupEntryCount = 8;
/// The first of the six entries of the real time clock; those before it are network addresses.
constexpr int firstClockEntry = 2;

/// The entries by index.
constexpr std::array<SetupEntry, setupEntryCount> setupEntries{{
    {u"B8180", u"Current Network Address 1:", 1, 32},
    {u"B8191", u"Current Network Address 2:", 1, 32},
    {u"B43012", u"Hr.", 0, 23},
    {u"B43010", u"Min.", 0, 59},
    {u"B43008", u"Sec.", 0, 59},
    {u"B43016", u"Mo.", 1, 12},
    {u"B43015", u"Day", 1, 31},
    {u"B43017", u"Yr.", 0, 99},
}};

/// The last two characters of "00" and the text: "5" gives "05", "123" gives "23".
QString LastTwoCharacters(const QString& value);

/// Title of the box that refuses a value: "Set-up" directly followed by the label of entry 0 to 7,
/// "Set-upHr.".
QString SetupRefusalTitle(int index);
