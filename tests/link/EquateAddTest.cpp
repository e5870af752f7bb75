#include "link/RSComm.h"
#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <map>

namespace {
// Every point of the family, written out as "board prefix point byte", apart from the K2012.
constexpr int points[][4] = {
    {49, 'X', 30, 49},  {49, 'X', 31, 50},  {49, 'X', 50, 51},  {49, 'X', 51, 52},
    {49, 'X', 60, 53},  {49, 'X', 61, 54},  {49, 'X', 70, 55},  {49, 'X', 71, 56},
    {49, 'X', 80, 57},  {49, 'Y', 81, 58},  {49, 'Y', 90, 59},  {49, 'Y', 100, 60},
    {49, 'Y', 110, 61}, {49, 'Y', 111, 62}, {49, 'Y', 120, 63}, {49, 'Y', 121, 64},
    {49, 'Y', 130, 65}, {49, 'Y', 140, 66}, {49, 'Y', 141, 67}, {58, 'X', 10, 51},
    {58, 'X', 11, 52},  {58, 'Y', 0, 49},   {58, 'Y', 1, 50},   {59, 'X', 10, 51},
    {59, 'X', 11, 52},  {59, 'X', 20, 53},  {59, 'X', 21, 54},  {59, 'Y', 0, 49},
    {59, 'Y', 1, 50},   {66, 'X', 10, 51},  {66, 'X', 11, 52},  {66, 'X', 20, 53},
    {66, 'X', 21, 54},  {66, 'Y', 0, 49},   {66, 'Y', 1, 50},   {60, 'X', 10, 51},
    {60, 'X', 11, 52},  {60, 'X', 20, 53},  {60, 'Y', 0, 49},   {60, 'Y', 1, 50},
    {60, 'Y', 21, 54},  {65, 'X', 10, 51},  {65, 'X', 11, 52},  {65, 'X', 20, 53},
    {65, 'Y', 0, 49},   {65, 'Y', 1, 50},   {65, 'Y', 21, 54},  {61, 'X', 0, 49},
    {61, 'X', 1, 50},   {61, 'X', 10, 51},  {61, 'Y', 11, 52}};

// Points of the K2012 in the order of their bytes.
constexpr int groupsOfTwo[] = {0,   1,   10,  11,  20,  21,  30,  31,  40,  41,  50,
                               51,  60,  61,  70,  71,  80,  81,  90,  91,  100, 101,
                               110, 111, 120, 121, 130, 131, 140, 141, 150, 151};

QString Point(char prefix, int number) {
    return QChar::fromLatin1(prefix) + QString::number(number);
}

std::map<QString, QString> EquivalentsOn(int board) {
    std::map<QString, QString> equivalents;
    for (const auto& [index, prefix, point, byte] : points)
        if (index == board)
            equivalents[Point(static_cast<char>(prefix), point)] = u'B' + QString::number(byte);
    int byte = 0;
    for (const int point : groupsOfTwo) {
        if (board == 50) {
            equivalents[Point('X', point)] = u'B' + QString::number(160 + byte);
            equivalents[Point('Y', point)] = u'B' + QString::number(160 + byte);
            equivalents[Point('I', point)] = u'B' + QString::number(192 + byte);
        }
        ++byte;
    }
    return equivalents;
}

QString Equate(const char* variable, int board) {
    return RSComm::EquateAdd(QString::fromLatin1(variable), static_cast<qint16>(board));
}

#define EXPECT_EQUATES(variable, board, expected)                                                  \
    EXPECT_EQ(Equate(variable, board), QString::fromLatin1(expected))
} // namespace

TEST(EquateAdd, MapsEveryPointOfEveryBoardAndNoOther) {
    for (int board = 0; board <= 255; ++board) {
        const auto equivalents = EquivalentsOn(board);
        for (const char prefix : {'X', 'Y', 'I', 'B', 'W', 'D', 'F', 'Q'}) {
            for (int number = 0; number <= 160; ++number) {
                const QString variable = Point(prefix, number);
                const auto known = equivalents.find(variable);
                const QString expected = known == equivalents.end() ? variable : known->second;
                ASSERT_EQ(RSComm::EquateAdd(variable, static_cast<qint16>(board)), expected)
                    << "board " << board;
            }
        }
    }
}

TEST(EquateAdd, MapsAllPointsOfTheK2012WithinItsLimits) {
    EXPECT_EQ(EquivalentsOn(50).size(), 96u);
    EXPECT_EQUATES("X0", 50, "B160");
    EXPECT_EQUATES("Y0", 50, "B160");
    EXPECT_EQUATES("I0", 50, "B192");
    EXPECT_EQUATES("X151", 50, "B191");
    EXPECT_EQUATES("I151", 50, "B223");
    EXPECT_EQUATES("X152", 50, "X152");
    EXPECT_EQUATES("X160", 50, "X160");
    EXPECT_EQUATES("I2", 50, "I2");
}

TEST(EquateAdd, PrefixIsTakenInEitherCase) {
    EXPECT_EQUATES("x30", 49, "B49");
    EXPECT_EQUATES("y81", 49, "B58");
    EXPECT_EQUATES("i10", 50, "B194");
}

TEST(EquateAdd, LeavesWhatIsNoPointUnchanged) {
    for (qint16 board = 0; board < 256; ++board)
        ASSERT_EQ(RSComm::EquateAdd(QStringLiteral("B100"), board), QStringLiteral("B100"));
    EXPECT_EQUATES("X30", 51, "X30");
    EXPECT_EQUATES("x30", 51, "x30");
    EXPECT_EQUATES("x151", 49, "x151");
    EXPECT_EQUATES("f000h", 49, "f000h");
    EXPECT_EQUATES("", 49, "");
    EXPECT_EQUATES("X", 49, "X");
}

TEST(EquateAdd, KeepsTheBitOfABitForm) {
    EXPECT_EQUATES("X30.2", 49, "B49.2");
    EXPECT_EQUATES("x30.0", 49, "B49.0");
    EXPECT_EQUATES("I151.7", 50, "B223.7");
    EXPECT_EQUATES("X99.2", 49, "X99.2");
}

TEST(EquateAdd, ABitAboveSevenBecomesSeven) {
    EXPECT_EQUATES("X30.9", 49, "B49.7");
    EXPECT_EQUATES("X30.8", 49, "B49.7");
}

TEST(EquateAdd, TakesTextsThatMakeNoSense) {
    EXPECT_EQUATES("X.", 50, "B160.0");
    EXPECT_EQUATES("X", 50, "B160");
    EXPECT_EQUATES("Xabc", 50, "B160");
    EXPECT_EQUATES("X-10", 50, "X-10");
    EXPECT_EQUATES("X99999999999999999999", 50, "X99999999999999999999");
    EXPECT_EQUATES(".", 50, ".");
}
