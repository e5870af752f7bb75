#include "base/modUtility.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <QDir>

namespace {
QString Text(const char* text) {
    return QString::fromLatin1(text);
}
} // namespace

TEST(ChangeExtension, GivesTheSiblingWithTheExtensionAsGiven) {
    EXPECT_EQ(ChangeExtension(Text("/p/Pump.hdn"), Text("HEX")), Text("/p/Pump.HEX"));
    EXPECT_EQ(ChangeExtension(Text("/p/Pump.hdn"), Text("hex")), Text("/p/Pump.hex"));
    EXPECT_EQ(ChangeExtension(Text("/p/Pump"), Text("rev")), Text("/p/Pump.rev"));
    EXPECT_EQ(ChangeExtension(Text("/p/Pump.old.hdn"), Text("rev")), Text("/p/Pump.old.rev"));
    EXPECT_EQ(ChangeExtension(Text("/p.q/Pump"), Text("rev")), Text("/p.q/Pump.rev"));
}

TEST(ChangeExtension, MakesThePathAbsolute) {
    EXPECT_EQ(ChangeExtension(Text("Pump.hdn"), Text("rev")), QDir::currentPath() + "/Pump.rev");
    EXPECT_EQ(ChangeExtension(Text("/p/../q/Pump.hdn"), Text("rev")), Text("/q/Pump.rev"));
    EXPECT_EQ(ChangeExtension(Text("/Pump.hdn"), Text("rev")), Text("/Pump.rev"));
}

TEST(PadNumber, PadsWithZerosToTheWidth) {
    EXPECT_EQ(PadNumber(7, 3), Text("007"));
    EXPECT_EQ(PadNumber(0, 2), Text("00"));
    EXPECT_EQ(PadNumber(12, 2), Text("12"));
}

TEST(PadNumber, NeverCutsALongerText) {
    EXPECT_EQ(PadNumber(1234, 2), Text("1234"));
    EXPECT_EQ(PadNumber(1234, 0), Text("1234"));
    EXPECT_EQ(PadNumber(1234, -1), Text("1234"));
}

TEST(PadNumber, TheSignStaysInsideTheText) {
    EXPECT_EQ(PadNumber(-5, 4), Text("00-5"));
    EXPECT_EQ(PadNumber(-32768, 8), Text("00-32768"));
}

TEST(BinaryText, EightBitsOfTheLowByte) {
    EXPECT_EQ(BinaryText(5, 0), Text("00000101"));
    EXPECT_EQ(BinaryText(255, 0), Text("11111111"));
    EXPECT_EQ(BinaryText(128, 0), Text("10000000"));
    EXPECT_EQ(BinaryText(261, 0), Text("00000101"));
    EXPECT_EQ(BinaryText(5, -1), Text("00000101"));
}

TEST(BinaryText, SixteenBitsWhenWide) {
    EXPECT_EQ(BinaryText(261, 1), Text("0000000100000101"));
    EXPECT_EQ(BinaryText(0, 1), Text("0000000000000000"));
    EXPECT_EQ(BinaryText(65535, 2), Text("1111111111111111"));
}

TEST(BinaryText, APartOfZeroOrLessIsEightZeros) {
    EXPECT_EQ(BinaryText(-5, 0), Text("00000000"));
    EXPECT_EQ(BinaryText(-261, 1), Text("0000000000000000"));
    EXPECT_EQ(BinaryText(std::numeric_limits<qint32>::min(), 1), Text("0000000000000000"));
}
