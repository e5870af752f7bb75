#include "statustable/AddressEntry.h"

#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

namespace {
QString Typed(const QString& keys, int column, qint16 board) {
    QString text;
    for (const QChar key : keys)
        text = TextAfterKey(text, key, column, board);
    return text;
}

QString Address(const char* keys, qint16 board = 49) {
    return Typed(QString::fromLatin1(keys), TableColumn::Address, board);
}
} // namespace

TEST(KeyFilter, TakesTheKeysOfTheBoard) {
    EXPECT_EQ(Address("X30", 49), QString("X30"));
    EXPECT_EQ(Address("x30", 66), QString("x30"));
    EXPECT_EQ(Address("X30", 51), QString("30"));
    EXPECT_EQ(Address("Y30", 0), QString("30"));
    EXPECT_EQ(Address("I30", 50), QString("I30"));
    EXPECT_EQ(Address("I30", 49), QString("30"));
    EXPECT_EQ(Address("fh", 62), QString("fh"));
    EXPECT_EQ(Address("W200", 68), QString("W200"));
}

TEST(KeyFilter, TakesPointsOnTheBoardsThatHaveThem) {
    for (qint16 board = 0; board <= 70; ++board) {
        const bool points = QList<qint16>{49, 50, 58, 59, 60, 61, 65, 66}.contains(board);
        for (const char* key : {"X", "x", "Y", "y"})
            EXPECT_EQ(Address(key, board), points ? QString(key) : QString()) << board << key;
        for (const char* key : {"I", "i"})
            EXPECT_EQ(Address(key, board), board == 50 ? QString(key) : QString()) << board << key;
    }
}

TEST(KeyFilter, RefusesAllOtherKeys) {
    EXPECT_EQ(Address("GJKLMNOPQRSTUVZ!-+,;_", 50), QString());
}

TEST(KeyFilter, TakesFiveCharactersBeforeThePoint) {
    EXPECT_EQ(Address("B12345"), QString("B1234"));
    EXPECT_EQ(Address("1F40H", 50), QString("1F40H"));
    EXPECT_EQ(Address("B8191.3", 50), QString("B8191.3"));
}

TEST(KeyFilter, TakesOnePointBehindBitVariables) {
    EXPECT_EQ(Address("B100.."), QString("B100."));
    EXPECT_EQ(Address("b100."), QString("b100."));
    EXPECT_EQ(Address("X30."), QString("X30."));
    EXPECT_EQ(Address("I1.", 50), QString("I1."));
    EXPECT_EQ(Address("B."), QString("B"));
    EXPECT_EQ(Address("."), QString());
    EXPECT_EQ(Address("W100."), QString("W100"));
    EXPECT_EQ(Address("F17."), QString("F17"));
}

TEST(KeyFilter, TakesOneBitDigitFrom0To7) {
    EXPECT_EQ(Address("B32.7"), QString("B32.7"));
    EXPECT_EQ(Address("B32.8"), QString("B32."));
    EXPECT_EQ(Address("B3.12"), QString("B3.1"));
    EXPECT_EQ(Address("B32.A"), QString("B32."));
}

TEST(KeyFilter, BackspaceDropsTheLastCharacter) {
    EXPECT_EQ(TextAfterKey("B100", QChar(8), TableColumn::Address, 49), QString("B10"));
    EXPECT_EQ(TextAfterKey("", QChar(8), TableColumn::Address, 49), QString());
    EXPECT_EQ(TextAfterKey("FF", QChar(8), TableColumn::Hexadecimal, 49), QString("F"));
}

TEST(KeyFilter, TakesDigitsForValues) {
    EXPECT_EQ(Typed("12A.9", TableColumn::Decimal, 49), QString("129"));
    EXPECT_EQ(Typed("12aFGh.", TableColumn::Hexadecimal, 49), QString("12aF"));
    EXPECT_EQ(Typed("655359999", TableColumn::Decimal, 49), QString("655359999"));
    EXPECT_EQ(Typed("B1.", TableColumn::Hexadecimal, 49), QString("B1"));
}

TEST(KeyFilter, TakesNothingInOtherColumns) {
    for (const int column : {TableColumn::Name, TableColumn::High, TableColumn::Low})
        EXPECT_EQ(Typed("01AB", column, 49), QString());
}

TEST(NextAddress, OfABit) {
    EXPECT_EQ(NextAddress("B100.6"), QString("B100.7"));
    EXPECT_EQ(NextAddress("B100.7"), QString("B101.0"));
    EXPECT_EQ(NextAddress("B199.7"), QString("B200.0"));
    EXPECT_EQ(NextAddress("X1.7"), QString("X10.0"));
    EXPECT_EQ(NextAddress("X10.7"), QString("X11.0"));
    EXPECT_EQ(NextAddress("Y11.7"), QString("Y20.0"));
    EXPECT_EQ(NextAddress("i0.0"), QString("I0.1"));
}

TEST(NextAddress, OfAPointFollowsItsTwoPartNumber) {
    EXPECT_EQ(NextAddress("X0"), QString("X1"));
    EXPECT_EQ(NextAddress("X1"), QString("X10"));
    EXPECT_EQ(NextAddress("X11"), QString("X20"));
    EXPECT_EQ(NextAddress("Y81"), QString("Y90"));
    EXPECT_EQ(NextAddress("I10"), QString("I11"));
}

TEST(NextAddress, OfMemoryIsTheNextOfItsWidth) {
    EXPECT_EQ(NextAddress("B100"), QString("B101"));
    EXPECT_EQ(NextAddress("w200"), QString("W202"));
    EXPECT_EQ(NextAddress("D200"), QString("D204"));
    EXPECT_EQ(NextAddress("F17"), QString("F18"));
}

TEST(NextAddress, OfAHexadecimalAddressHasNoPrefix) {
    EXPECT_EQ(NextAddress("FFH"), QString("100H"));
    EXPECT_EQ(NextAddress("1f3fh"), QString("1F40H"));
}

TEST(NextAddress, OfAnyOtherKindIsEmpty) {
    EXPECT_EQ(NextAddress("Q0"), QString());
    EXPECT_EQ(NextAddress("A0"), QString());
    EXPECT_EQ(NextAddress("W100.7"), QString());
    EXPECT_EQ(NextAddress(""), QString());
}

TEST(PastedAddress, IsCheckedAsIfTyped) {
    EXPECT_EQ(PastedAddress(" b100 ", 49), QString("B100"));
    EXPECT_EQ(PastedAddress("00FFH", 49), QString("FFH"));
    EXPECT_EQ(PastedAddress("X30.2", 49), QString("X30.2"));
    EXPECT_EQ(PastedAddress("B31", 49), QString());
    EXPECT_EQ(PastedAddress("W33", 49), QString());
}

TEST(PastedAddress, ThatWouldLoseACharacterIsRefusedWhole) {
    EXPECT_EQ(PastedAddress("X10", 51), QString()); // "10" is what typing would leave of it
    EXPECT_EQ(PastedAddress("B1000000", 50), QString());
    EXPECT_EQ(PastedAddress("B1E2", 50), QString());
    EXPECT_EQ(PastedAddress("W20H", 50), QString());
    EXPECT_EQ(PastedAddress("Motor", 50), QString());
    EXPECT_EQ(PastedAddress("", 50), QString());
}
