#include "link/RSComm.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {
bool Valid(const char* variable, int board) {
    return RSComm::ValidAdd(QString::fromLatin1(variable), static_cast<qint16>(board));
}

bool Valid(char prefix, int number, int board) {
    return RSComm::ValidAdd(QChar::fromLatin1(prefix) + QString::number(number),
                            static_cast<qint16>(board));
}

bool IsOneOf(int value, std::initializer_list<int> values) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

bool IsClassA(int board) {
    return IsOneOf(board, {49, 51, 52, 53, 54, 56, 58, 59, 60, 61, 65, 66});
}

bool IsClassB(int board) {
    return board == 50 || board == 68;
}

// The highest X and Y point, or -1 where there is none.
int HighestPoint(int board) {
    if (board == 0 || board == 68)
        return -1;
    return board == 49 || board == 50 ? 151 : 21;
}

int HighestImagePoint(int board) {
    if (board == 49 || board == 50)
        return 151;
    return IsOneOf(board, {51, 52, 53, 54, 56}) ? 21 : -1;
}
} // namespace

TEST(ValidAdd, BytesRunFrom32ToTheEndOfTheMemoryOfTheClass) {
    for (int board = 0; board < 256; ++board) {
        const int highest = IsClassA(board) ? 255 : IsClassB(board) ? 8275 : 65535;
        EXPECT_FALSE(Valid('B', 31, board)) << board;
        EXPECT_TRUE(Valid('B', 32, board)) << board;
        EXPECT_TRUE(Valid('B', 33, board)) << board;
        EXPECT_TRUE(Valid('B', highest, board)) << board;
        EXPECT_FALSE(Valid('B', highest + 1, board)) << board;
    }
}

TEST(ValidAdd, WordsAndDoubleWordsAreEvenAndEndOneByteEarlier) {
    for (int board = 0; board < 256; ++board) {
        const int highest = IsClassA(board) ? 254 : IsClassB(board) ? 8274 : 65534;
        for (const char prefix : {'W', 'D', 'w', 'd'}) {
            EXPECT_FALSE(Valid(prefix, 30, board)) << board;
            EXPECT_TRUE(Valid(prefix, 32, board)) << board;
            EXPECT_FALSE(Valid(prefix, 33, board)) << board;
            EXPECT_TRUE(Valid(prefix, highest, board)) << board;
            EXPECT_FALSE(Valid(prefix, highest + 1, board)) << board;
            EXPECT_FALSE(Valid(prefix, highest + 2, board)) << board;
        }
    }
}

TEST(ValidAdd, FlagsRunFrom0ToTheLastOfTheClass) {
    for (int board = 0; board < 256; ++board) {
        const int highest = IsClassA(board) ? 120 : 991;
        EXPECT_FALSE(Valid('F', -1, board)) << board;
        EXPECT_TRUE(Valid('F', 0, board)) << board;
        EXPECT_TRUE(Valid('F', highest, board)) << board;
        EXPECT_FALSE(Valid('F', highest + 1, board)) << board;
    }
}

TEST(ValidAdd, PointsRunToTheLastOfTheBoardWithTheLastDigit0Or1) {
    for (int board = 0; board < 256; ++board) {
        for (int number = -1; number <= 160; ++number) {
            const bool digit = number >= 0 && number % 10 <= 1;
            const bool point = digit && number <= HighestPoint(board);
            const bool image = digit && number <= HighestImagePoint(board);
            ASSERT_EQ(Valid('X', number, board), point) << board << " X" << number;
            ASSERT_EQ(Valid('y', number, board), point) << board << " y" << number;
            ASSERT_EQ(Valid('I', number, board), image) << board << " I" << number;
        }
    }
}

TEST(ValidAdd, B31IsInvalidOnEveryClassAndB32Valid) {
    for (const int board : {51, 50, 55}) {
        EXPECT_FALSE(Valid("B31", board));
        EXPECT_TRUE(Valid("B32", board));
    }
}

TEST(ValidAdd, W33IsInvalidForItsOddNumberAndW32Valid) {
    EXPECT_FALSE(Valid("W33", 51));
    EXPECT_TRUE(Valid("W32", 51));
}

TEST(ValidAdd, F120IsTheLastFlagOfAK2014AndF991OfAK2012) {
    EXPECT_TRUE(Valid("F120", 51));
    EXPECT_FALSE(Valid("F121", 51));
    EXPECT_TRUE(Valid("F991", 50));
    EXPECT_FALSE(Valid("F992", 50));
}

TEST(ValidAdd, PointsOfAnR6011EndAt21) {
    EXPECT_TRUE(Valid("X21", 59));
    EXPECT_FALSE(Valid("X22", 59)) << "last digit 2";
    EXPECT_FALSE(Valid("X31", 59)) << "over 21";
}

TEST(ValidAdd, X151OfAK2010IsValidByRangeThoughThereIsNoSuchPoint) {
    EXPECT_TRUE(Valid("X151", 49));
    EXPECT_EQ(RSComm::EquateAdd(QStringLiteral("X151"), 49), QStringLiteral("X151"));
}

TEST(ValidAdd, NoPointIsValidOnBoard68) {
    for (int number = 0; number <= 151; ++number) {
        EXPECT_FALSE(Valid('X', number, 68));
        EXPECT_FALSE(Valid('Y', number, 68));
        EXPECT_FALSE(Valid('I', number, 68));
    }
}

TEST(ValidAdd, AnyOtherLetterIsValidWithTheNumber0Alone) {
    EXPECT_TRUE(Valid("Q0", 51));
    EXPECT_TRUE(Valid("Q", 51));
    EXPECT_FALSE(Valid("Q1", 51));
    EXPECT_FALSE(Valid("Q-1", 51));
    EXPECT_TRUE(Valid(".5", 51));
    EXPECT_FALSE(Valid("", 51));
}

TEST(ValidAdd, TheBitOfABitFormIsNotLookedAt) {
    EXPECT_TRUE(Valid("B100.3", 51));
    EXPECT_TRUE(Valid("B100.9", 51));
    EXPECT_TRUE(Valid("B100.x", 51));
    EXPECT_FALSE(Valid("B31.3", 51));
    EXPECT_TRUE(Valid("X10.3", 59));
    EXPECT_FALSE(Valid("X12.3", 59));
}

TEST(ValidAdd, TheHexadecimalFormIsReadAsAFlagNumber) {
    EXPECT_TRUE(Valid("F000H", 51));
    EXPECT_TRUE(Valid("F120H", 51));
    EXPECT_FALSE(Valid("F121H", 51));
    EXPECT_TRUE(Valid("3fh", 51)) << "any other first character, and no number";
    EXPECT_FALSE(Valid("33h", 51));
}

TEST(ValidAdd, NumbersAreCutAndReadAsFarAsTheyGo) {
    EXPECT_TRUE(Valid("B100abc", 51));
    EXPECT_TRUE(Valid("B 100", 51));
    EXPECT_FALSE(Valid("Babc", 51));
    EXPECT_TRUE(Valid("B1e2", 51));
    EXPECT_FALSE(Valid(("B" + std::string(400, '9')).c_str(), 55));
}
