#include "base/CharacterSet.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <set>

TEST(CharacterSet, All256BytesComeBack) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    const QString text = FromWindows1252(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(ToWindows1252(text), bytes);
    EXPECT_TRUE(IsWindows1252(text));
    std::set<char16_t> characters;
    for (const QChar c : text)
        characters.insert(c.unicode());
    EXPECT_EQ(characters.size(), 256u) << "each byte has a character of its own";
}

TEST(CharacterSet, KnowsTheCharactersBetween80And9F) {
    EXPECT_EQ(CharacterOfCode(0x80), QChar(0x20AC)); // euro
    EXPECT_EQ(CharacterOfCode(0x85), QChar(0x2026)); // ellipsis
    EXPECT_EQ(CharacterOfCode(0x93), QChar(0x201C)); // left double quotation mark
    EXPECT_EQ(CharacterOfCode(0x96), QChar(0x2013)); // en dash
    EXPECT_EQ(CharacterOfCode(0x99), QChar(0x2122)); // trade mark
    EXPECT_EQ(CharacterOfCode(0x9F), QChar(0x0178)); // Y with diaeresis
    EXPECT_EQ(CharacterOfCode(0xB0), QChar(0x00B0)); // degree sign, code 176
    EXPECT_EQ(CharacterOfCode(0xFC), QChar(0x00FC)); // u with diaeresis
}

TEST(CharacterSet, TheFiveOpenBytesAreControlCharacters) {
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(CharacterOfCode(static_cast<std::uint8_t>(byte)).unicode(), byte);
}

TEST(CharacterSet, AnyOtherCharacterIsAQuestionMark) {
    EXPECT_EQ(CodeOfCharacter(QChar(0x03A9)), '?');
    EXPECT_EQ(CodeOfCharacter(QChar(0x0080)), '?') << "the control character that 0x80 is not";
    EXPECT_FALSE(IsWindows1252(QString(QChar(0x03A9))));
    EXPECT_EQ(ToWindows1252(QStringLiteral("a\u03A9b")), "a?b");
}

TEST(CharacterSet, EmptyTextsStayEmpty) {
    EXPECT_EQ(FromWindows1252(QByteArray()), QString());
    EXPECT_EQ(ToWindows1252(QString()), QByteArray());
    EXPECT_TRUE(IsWindows1252(QString()));
}
