#include "base/NumberReader.h"

#include "support/ExpectError.h"
#include <gtest/gtest.h>
#include <limits>
#include <QString>

namespace {
double Value(const char* text) {
    return NumberValue(QString::fromLatin1(text));
}
constexpr double largest = std::numeric_limits<double>::max();
} // namespace

TEST(NumberValue, ReadsNumbers) {
    EXPECT_EQ(Value("0"), 0.0);
    EXPECT_EQ(Value("42"), 42.0);
    EXPECT_EQ(Value("-7"), -7.0);
    EXPECT_EQ(Value("+7"), 7.0);
    EXPECT_EQ(Value("12.5"), 12.5);
    EXPECT_EQ(Value(".5"), 0.5);
    EXPECT_EQ(Value("5."), 5.0);
    EXPECT_EQ(Value("-.25"), -0.25);
    EXPECT_EQ(Value("1e3"), 1000.0);
    EXPECT_EQ(Value("1.5E-2"), 0.015);
    EXPECT_EQ(Value("007"), 7.0);
    EXPECT_EQ(Value("655359999"), 655359999.0);
}

TEST(NumberValue, SkipsBlanksAndStopsAtWhatDoesNotBelong) {
    EXPECT_EQ(Value("  \t49 "), 49.0);
    EXPECT_EQ(Value("12abc"), 12.0);
    EXPECT_EQ(Value("1,000"), 1.0);
    EXPECT_EQ(Value("1 000"), 1.0);
    EXPECT_EQ(Value("1.2.3"), 1.2);
    EXPECT_EQ(Value("5e"), 5.0);
    EXPECT_EQ(Value("5e+"), 5.0);
    EXPECT_EQ(Value("3-2"), 3.0);
}

TEST(NumberValue, TextWithoutANumberIs0) {
    for (const char* text : {"", " ", "abc", "-", "+", ".", "-.", "e5", "--1", "inf", "nan", "x1"})
        EXPECT_EQ(Value(text), 0.0) << text;
}

TEST(NumberValue, DigitsOfOtherScriptsAreNone) {
    EXPECT_EQ(NumberValue(QString(QChar(0x0665))), 0.0);
}

TEST(NumberValue, FourHundredDigitsAreTheLargestNumber) {
    EXPECT_EQ(NumberValue(QString(400, u'9')), largest);
    EXPECT_EQ(NumberValue(u'-' + QString(400, u'9')), -largest);
    EXPECT_EQ(Value("1e999"), largest);
    EXPECT_EQ(Value("1e99999999999999999999"), largest);
}

TEST(NumberValue, ANumberTooSmallForTheTypeIs0) {
    EXPECT_EQ(Value("1e-999"), 0.0);
    EXPECT_EQ(NumberValue(QStringLiteral("0.") + QString(400, u'0') + u'1'), 0.0);
}

TEST(WholeNumberValue, IsCutTowardZero) {
    EXPECT_EQ(WholeNumberValue(u"12.9"), 12);
    EXPECT_EQ(WholeNumberValue(u"-12.9"), -12);
    EXPECT_EQ(WholeNumberValue(u"abc"), 0);
    EXPECT_EQ(WholeNumberValue(u"1e2"), 100);
}

TEST(WholeNumberValue, IsHeldWithinItsRange) {
    EXPECT_GT(WholeNumberValue(QString(400, u'9')), 9'000'000'000'000'000'000);
    EXPECT_LT(WholeNumberValue(u'-' + QString(400, u'9')), -9'000'000'000'000'000'000);
}

TEST(HexNumberValue, ReadsDigitsOfEitherCase) {
    EXPECT_EQ(HexNumberValue(u"A3"), 0xA3);
    EXPECT_EQ(HexNumberValue(u"a3"), 0xA3);
    EXPECT_EQ(HexNumberValue(u"FFFFFFFF"), 0xFFFFFFFF);
    EXPECT_EQ(HexNumberValue(u"0000000012"), 0) << "eight digits at the most";
}

TEST(HexNumberValue, StopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(HexNumberValue(u"1G"), 1);
    EXPECT_EQ(HexNumberValue(u"x1"), 0);
    EXPECT_EQ(HexNumberValue(u" 1"), 0);
    EXPECT_EQ(HexNumberValue(u"-1"), 0);
    EXPECT_EQ(HexNumberValue(u""), 0);
}

TEST(IsNumeric, TakesOneNumberWithBlanksAround) {
    for (const char* text : {"1", " 1 ", "-1.5", "+.5", "1e3", "5."})
        EXPECT_TRUE(IsNumeric(QString::fromLatin1(text))) << text;
    for (const char* text : {"", " ", "a", "1a", "1 2", "-", "1e", ".", "1,5"})
        EXPECT_FALSE(IsNumeric(QString::fromLatin1(text))) << text;
}

TEST(RoundToWhole, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(RoundToWhole(0.5), 0);
    EXPECT_EQ(RoundToWhole(1.5), 2);
    EXPECT_EQ(RoundToWhole(2.5), 2);
    EXPECT_EQ(RoundToWhole(-0.5), 0);
    EXPECT_EQ(RoundToWhole(-1.5), -2);
    EXPECT_EQ(RoundToWhole(2.4), 2);
    EXPECT_EQ(RoundToWhole(2.6), 3);
}

TEST(RoundToWhole, OutsideTheRangeIsAnOverflow) {
    EXPECT_EQ(RoundToWhole(2147483647.4), 2147483647);
    EXPECT_EQ(RoundToWhole(-2147483648.0), std::numeric_limits<qint32>::min());
    ExpectError(6, [] { RoundToWhole(2147483647.5); });
    ExpectError(6, [] { RoundToWhole(-2147483649.0); });
    ExpectError(6, [] { RoundToWhole(std::numeric_limits<double>::quiet_NaN()); });
    ExpectError(6, [] { RoundToWhole(std::numeric_limits<double>::infinity()); });
}
