#include "SourceTexts.h"

#include "TextList.h"
#include <gmock/gmock.h>

// The reader of sources sees what the compiler sees.

namespace {
const std::string gap = QString(variablePlace).toStdString();

std::vector<std::string> Texts(const char* source) {
    std::vector<std::string> texts;
    for (const SourceText& each : TextsOfSource(QString::fromUtf8(source)))
        texts.push_back(each.text.toStdString());
    return texts;
}
using Strings = std::vector<std::string>;
} // namespace

TEST(SourceTexts, LiteralsSideBySideAreOne) {
    EXPECT_EQ(Texts("f(\"one \"\n  \"two\", \"three\");"), (Strings{"one two", "three"}));
}

TEST(SourceTexts, AddedLiteralsAreOneWhateverWrapsThem) {
    EXPECT_EQ(Texts("x = QStringLiteral(\"one\") + QLatin1String(\" two\") + u'.';"),
              (Strings{"one two."}));
}

TEST(SourceTexts, WhatTheCodePutsInIsAGap) {
    EXPECT_EQ(Texts("f(path + \" does not\" + ending + \"exist\", a);"),
              (Strings{" does not" + gap + "exist"}));
    EXPECT_EQ(Texts("f(\"Address \" + number);"), (Strings{"Address " + gap}));
}

TEST(SourceTexts, EscapesAreRead) {
    EXPECT_EQ(Texts(R"(f("a\r\n\t\"b\\", "\u2013");)"), (Strings{"a\r\n\t\"b\\", "\u2013"}));
}

TEST(SourceTexts, CommentsHeadersAndPartedDigitsAreNoTexts) {
    EXPECT_EQ(
        Texts("#include \"base/Clock.h\"\n// \"no\"\n/* \"nor\" */ f(10'000, 0xAB'CD, \"c\");"),
        (Strings{"c"}));
}

TEST(SourceTexts, RawStringsStandAsTheyAre) {
    EXPECT_EQ(Texts("f(R\"x(a\\n\"b)x\", \"c\");"), (Strings{"a\\n\"b", "c"}));
}

TEST(SourceTexts, ALineIsThatOfTheFirstLiteral) {
    EXPECT_EQ(TextsOfSource(QStringLiteral("\n\nf(\"a\"\n\"b\");")).front().line, 3);
}

TEST(SourceTexts, SourcesAreFound) {
    EXPECT_GT(SourceFiles(QStringLiteral("src")).size(), 300);
    EXPECT_GT(SourceFiles(QStringLiteral("tests")).size(), 100);
}
