#include "link/VariableValue.h"

#include "support/PrintText.h"
#include <array>
#include <gtest/gtest.h>

TEST(VariableValue, WidthsTakeOneTwoAndFourBytes) {
    EXPECT_EQ(BytesOfWidth(u'B'), 1);
    EXPECT_EQ(BytesOfWidth(u'W'), 2);
    EXPECT_EQ(BytesOfWidth(u'D'), 4);
}

TEST(VariableValue, LowByteComesFirst) {
    constexpr std::array<std::uint8_t, 4> bytes{0x34, 0x12, 0x02, 0x01};
    EXPECT_EQ(ValueOfBytes(bytes.data(), 1), 0x34);
    EXPECT_EQ(ValueOfBytes(bytes.data(), 2), 0x1234);
    EXPECT_EQ(ValueOfBytes(bytes.data(), 4), 0x0102 * 10000 + 0x1234);
}

TEST(VariableValue, ADoubleWordIsOfDecimalRadix) {
    constexpr std::array<std::uint8_t, 4> highest{0x0F, 0x27, 0xFF, 0xFF};
    EXPECT_EQ(ValueOfBytes(highest.data(), 4), 655359999);
    constexpr std::array<std::uint8_t, 4> anyBytes{0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(ValueOfBytes(anyBytes.data(), 4), 655415535);
}

TEST(VariableValue, GoesOutInTheBytesItIsReadFrom) {
    EXPECT_EQ(BytesOfValue(u'B', 255).toHex(), "ff");
    EXPECT_EQ(BytesOfValue(u'W', 1000).toHex(), "e803");
    EXPECT_EQ(BytesOfValue(u'W', 65535).toHex(), "ffff");
    EXPECT_EQ(BytesOfValue(u'D', 655359999).toHex(), "0f27ffff");
    EXPECT_EQ(BytesOfValue(u'D', 10000).toHex(), "00000100");
    EXPECT_EQ(BytesOfValue(u'D', 9999).toHex(), "0f270000");
}

TEST(VariableValue, LimitsAndWhatTheUserIsTold) {
    EXPECT_EQ(LimitOfWidth(u'B').highest, 255);
    EXPECT_EQ(LimitOfWidth(u'B').message, QStringLiteral("Entry out of Range (0-255)."));
    EXPECT_EQ(LimitOfWidth(u'W').highest, 65535);
    EXPECT_EQ(LimitOfWidth(u'W').message, QStringLiteral("Entry out of Range (0-65,535)."));
    EXPECT_EQ(LimitOfWidth(u'D').highest, 655359999);
    EXPECT_EQ(LimitOfWidth(u'D').message, QStringLiteral("Entry out of Range (0-655,359,999)."));
}
