#include "link/MarkHex.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "support/PrintText.h"
#include <gtest/gtest.h>

namespace {
QString ToHex(const char* text) {
    QString inPlace = QString::fromLatin1(text);
    const QString given = RSComm::MarkHex2HEX(inPlace);
    EXPECT_EQ(given, inPlace) << "the text itself is changed and given back";
    return inPlace;
}

QString ToMark(const char* text) {
    QString inPlace = QString::fromLatin1(text);
    const QString given = RSComm::HEX2MarkHEX(inPlace);
    EXPECT_EQ(given, inPlace) << "the text itself is changed and given back";
    return inPlace;
}
} // namespace

TEST(MarkHex, TheSixMarksBecomeLetters) {
    EXPECT_EQ(ToHex(":;<=>?"), QStringLiteral("ABCDEF"));
    EXPECT_EQ(ToHex(":3"), QStringLiteral("A3"));
}

TEST(MarkHex, TheSixLettersBecomeMarks) {
    EXPECT_EQ(ToMark("ABCDEF"), QStringLiteral(":;<=>?"));
}

TEST(MarkHex, AllElsePassesThrough) {
    EXPECT_EQ(ToHex("0123456789abcdefG@/ A"), QStringLiteral("0123456789abcdefG@/ A"));
    EXPECT_EQ(ToMark("0123456789abcdefG@/ :"), QStringLiteral("0123456789abcdefG@/ :"));
    EXPECT_EQ(ToHex(""), QString());
}

TEST(MarkHex, PairsReadAsDecimal) {
    EXPECT_EQ(MarkHexToDecimal(QStringLiteral(":3")), QStringLiteral("163"));
    EXPECT_EQ(MarkHexToDecimal(QStringLiteral("01")), QStringLiteral("1"));
    EXPECT_EQ(MarkHexToDecimal(QStringLiteral("??")), QStringLiteral("255"));
    EXPECT_EQ(MarkHexToDecimal(QString()), QStringLiteral("0"));
}

TEST(MarkHex, EveryByteHasTwoDigitsThatReadBack) {
    for (int byte = 0; byte < 256; ++byte) {
        QString digits = TwoHexDigits(byte);
        ASSERT_EQ(digits.size(), 2);
        ASSERT_EQ(digits, digits.toUpper());
        ASSERT_EQ(digits.toInt(nullptr, 16), byte);
        ASSERT_EQ(MarkHexToDecimal(HEX2MarkHEX(digits)), QString::number(byte));
    }
}

TEST(Octal, ChannelNumbersOnTheScreen) {
    EXPECT_EQ(RSComm::Dec2Octal(0), 0);
    EXPECT_EQ(RSComm::Dec2Octal(7), 7);
    EXPECT_EQ(RSComm::Dec2Octal(8), 10);
    EXPECT_EQ(RSComm::Dec2Octal(9), 11);
    EXPECT_EQ(RSComm::Dec2Octal(63), 77);
}

TEST(Octal, WorksOnTwoDigitsOnly) {
    EXPECT_EQ(RSComm::Dec2Octal(64), 80);
    EXPECT_EQ(RSComm::Octal2Dec(80), 64);
    EXPECT_EQ(RSComm::Octal2Dec(19), 17);
}

TEST(Octal, ReadsBackWhatItGave) {
    for (qint16 number = 0; number < 1000; ++number)
        ASSERT_EQ(RSComm::Octal2Dec(RSComm::Dec2Octal(number)), number);
}

TEST(Octal, DivisionTruncatesTowardZero) {
    EXPECT_EQ(RSComm::Dec2Octal(-9), -11);
    EXPECT_EQ(RSComm::Octal2Dec(-19), -17);
}

TEST(Octal, AResultBeyond16BitsIsAnOverflow) {
    EXPECT_EQ(RSComm::Dec2Octal(26213), 32765);
    try {
        RSComm::Dec2Octal(26216);
        FAIL() << "32770 has no room in 16 bits";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}
