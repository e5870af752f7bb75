#include "base/TextFile.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>

namespace {
class TextWriting : public testing::Test {
protected:
    TestFolder folder;
    const QString name = QStringLiteral("out.txt");
};
} // namespace

TEST_F(TextWriting, ATextLineEndsWithCrLf) {
    TextWriter writer(folder.Path(name));
    writer.PrintText(QStringLiteral("one"));
    writer.PrintText(QString());
    writer.Close();
    EXPECT_EQ(folder.Content(name), "one\r\n\r\n");
}

TEST_F(TextWriting, ANumberLineHasABlankBeforeAndAfter) {
    TextWriter writer(folder.Path(name));
    writer.PrintNumber(49);
    writer.PrintNumber(-3);
    writer.PrintNumber(0);
    writer.Close();
    EXPECT_EQ(folder.Content(name), " 49 \r\n-3 \r\n 0 \r\n");
}

TEST_F(TextWriting, RawTextHasNoLineEnd) {
    TextWriter writer(folder.Path(name));
    writer.Write(QStringLiteral("a"));
    writer.Write(QStringLiteral("b"));
    writer.Close();
    EXPECT_EQ(folder.Content(name), "ab");
}

TEST_F(TextWriting, NothingTouchesTheDiskBeforeClose) {
    folder.Write(name, "old");
    {
        TextWriter writer(folder.Path(name));
        writer.PrintText(QStringLiteral("new"));
        EXPECT_EQ(folder.Content(name), "old");
    }
    EXPECT_EQ(folder.Content(name), "old") << "without Close nothing is written";
    EXPECT_EQ(folder.Names(), QStringList{name});
}

TEST_F(TextWriting, WithoutAnyLineTheFileIsEmpty) {
    folder.Write(name, "old");
    TextWriter(folder.Path(name)).Close();
    EXPECT_EQ(folder.Content(name), "");
}

TEST_F(TextWriting, All256BytesGoRoundTripThroughReaderAndWriter) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            bytes.append(static_cast<char>(byte));
    TextReader reader(folder.Write(QStringLiteral("in.txt"), bytes));
    TextWriter writer(folder.Path(name));
    writer.PrintText(reader.LineInput());
    writer.Close();
    EXPECT_EQ(folder.Content(name), bytes + "\r\n");
}

TEST_F(TextWriting, WhatTheCodePageLacksBecomesAQuestionMark) {
    TextWriter writer(folder.Path(name));
    writer.PrintText(QStringLiteral("50 \u20AC \u03A9"));
    writer.Close();
    EXPECT_EQ(folder.Content(name), "50 \x80 ?\r\n");
}

TEST_F(TextWriting, AMissingFolderIsError76) {
    TextWriter writer(folder.Path(QStringLiteral("none/out.txt")));
    ExpectError(76, [&] { writer.Close(); });
    EXPECT_EQ(folder.Names(), QStringList());
}

TEST(PrintedNumber, IsTheNumberLineWithoutItsEnd) {
    EXPECT_EQ(PrintedNumber(49), QStringLiteral(" 49 "));
    EXPECT_EQ(PrintedNumber(-3), QStringLiteral("-3 "));
    EXPECT_EQ(PrintedNumber(0), QStringLiteral(" 0 "));
}
