#include "link/ParsedAddress.h"
#include <gtest/gtest.h>
#include <limits>

namespace {
void ExpectParsed(const char* variable, char16_t width, qint32 address) {
    const ParsedAddress parsed = ParseAddress(QString::fromLatin1(variable));
    EXPECT_EQ(parsed.width.unicode(), width) << variable;
    EXPECT_EQ(parsed.address, address) << variable;
    EXPECT_FALSE(parsed.isBit) << variable;
}

void ExpectBit(const char* variable, qint32 address, int mask) {
    const ParsedAddress parsed = ParseAddress(QString::fromLatin1(variable));
    EXPECT_EQ(parsed.width.unicode(), u'B') << variable;
    EXPECT_EQ(parsed.address, address) << variable;
    EXPECT_EQ(parsed.mask, mask) << variable;
    EXPECT_TRUE(parsed.isBit) << variable;
}
} // namespace

TEST(ParsedAddress, BytesWordsAndDoubleWordsInEitherCase) {
    ExpectParsed("B8176", u'B', 8176);
    ExpectParsed("b8176", u'B', 8176);
    ExpectParsed("W100", u'W', 100);
    ExpectParsed("w100", u'W', 100);
    ExpectParsed("D100", u'D', 100);
    ExpectParsed("d65532", u'D', 65532);
    ExpectParsed("B61433", u'B', 61433);
}

TEST(ParsedAddress, AFinalHDecidesForTheHexadecimalForm) {
    ExpectParsed("F000H", u'B', 0xF000);
    ExpectParsed("3fh", u'B', 0x3F);
    ExpectParsed("3FH", u'B', 0x3F);
    ExpectParsed("0H", u'B', 0);
    ExpectParsed("123H", u'B', 0x123);
    ExpectParsed("B100H", u'B', 0xB100); // the first letter plays no part
    ExpectParsed("D1H", u'B', 0xD1);
    ExpectParsed("FFFFH", u'B', 0xFFFF);
    ExpectParsed("H", u'B', 0);
}

TEST(ParsedAddress, HexadecimalReadsLowByteAndHighByteApart) {
    ExpectParsed("XY12H", u'B', 0x12);
    ExpectParsed("12XYH", u'B', 0x1200);
    ExpectParsed("1.2H", u'B', 0x100); // "1" high, ".2" no digits
}

TEST(ParsedAddress, BitsOfBytes) {
    ExpectBit("B100.0", 100, 0x01);
    ExpectBit("B100.3", 100, 0x08);
    ExpectBit("B100.7", 100, 0x80);
    ExpectBit("b49.2", 49, 0x04);
    ExpectBit("Q49.2", 49, 0x04); // the first letter plays no part here either
    ExpectBit("F17.2", 17, 0x04);
}

TEST(ParsedAddress, BitsBeyondTheByteHaveAMaskOutsideIt) {
    ExpectBit("B100.8", 100, 0x100);
    ExpectBit("B100.9", 100, 0x200);
}

TEST(ParsedAddress, FlagsAreEightABytefromByte32) {
    ExpectBit("F0", 32, 0x01);
    ExpectBit("F3", 32, 0x08);
    ExpectBit("F7", 32, 0x80);
    ExpectBit("F8", 33, 0x01);
    ExpectBit("f17", 34, 0x02);
    ExpectBit("F991", 32 + 123, 0x80);
}

TEST(ParsedAddress, AnyOtherTextFallsBackToByte32) {
    ExpectParsed("X30", u'B', 32);
    ExpectParsed("Y81", u'B', 32);
    ExpectParsed("I10", u'B', 32);
    ExpectParsed("Q7", u'B', 32);
    ExpectParsed("100", u'B', 32);
    ExpectParsed("", u'B', 32);
}

TEST(ParsedAddress, IsTotal) {
    ExpectParsed("B", u'B', 0);
    ExpectParsed("Bx", u'B', 0);
    ExpectParsed("B-5", u'B', -5);
    ExpectParsed("B1.5H", u'B', 0xB1 * 256); // ".5" holds no hexadecimal digit
    ExpectBit("B1234.", 123, 1); // the last two characters are the bit, whatever they are
    ExpectBit(".", 0, 1);
    ExpectBit("B.", 0, 1);
    ExpectBit("B.7", 0, 0x80);
    ExpectBit("F-5", 32, 1);
    ExpectBit("F", 32, 1);
    ExpectParsed("B99999999999999999999", u'B', std::numeric_limits<qint32>::max());
    ExpectBit("F99999999999999999999", 32 + std::numeric_limits<qint32>::max() / 8, 0x80);
    EXPECT_GT(ParseAddress(QString(400, u'F') + u'H').address, 65535);
}
