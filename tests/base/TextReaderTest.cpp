#include "base/TextFile.h"
#include "support/ExpectError.h"
#include "support/OrdinaryUser.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
class TextReading : public testing::Test {
protected:
    QStringList Items(const QByteArray& bytes) const {
        TextReader reader(folder.Write(QStringLiteral("a.txt"), bytes));
        QStringList items;
        while (!reader.AtEnd())
            items << reader.InputItem();
        return items;
    }
    QStringList Lines(const QByteArray& bytes) const {
        TextReader reader(folder.Write(QStringLiteral("a.txt"), bytes));
        QStringList lines;
        while (!reader.AtEnd())
            lines << reader.LineInput();
        return lines;
    }
    TestFolder folder;
};

QStringList Texts(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts)
        list << QString::fromLatin1(text);
    return list;
}
} // namespace

TEST_F(TextReading, LinesEndWithCrLfOrLfOrCr) {
    EXPECT_EQ(Lines("one\r\ntwo\nthree\rfour"), Texts({"one", "two", "three", "four"}));
    EXPECT_EQ(Items("one\r\ntwo\nthree\rfour"), Texts({"one", "two", "three", "four"}));
}

TEST_F(TextReading, AnEmptyFileIsAtItsEndAtOnce) {
    EXPECT_EQ(Lines(""), QStringList());
    EXPECT_EQ(Items(""), QStringList());
}

TEST_F(TextReading, EmptyLinesGiveEmptyItemsAndLines) {
    EXPECT_EQ(Lines("\r\n\r\nA\r\n\n"), Texts({"", "", "A", ""}));
    EXPECT_EQ(Items("\r\n\r\nA\r\n\n"), Texts({"", "", "A", ""}));
}

TEST_F(TextReading, AWholeLineKeepsBlanksCommasAndQuotes) {
    EXPECT_EQ(Lines("  a, \"b\" \t\r\n"), Texts({"  a, \"b\" \t"}));
}

TEST_F(TextReading, ItemsArePartedByCommasAndLineEnds) {
    EXPECT_EQ(Items("a,b\r\nc,,d\n"), Texts({"a", "b", "c", "", "d"}));
}

TEST_F(TextReading, ACommaAtTheEndOfALineGivesAnEmptyItem) {
    EXPECT_EQ(Items("a,\r\nb"), Texts({"a", "", "b"}));
}

TEST_F(TextReading, BlanksAroundAnItemAreDroppedAndWithinItKept) {
    EXPECT_EQ(Items("  a b  ,\t c\t\r\n d "), Texts({"a b", "c", "d"}));
    EXPECT_EQ(Items(" 49 \r\n-3 \r\n"), Texts({"49", "-3"}));
}

TEST_F(TextReading, AQuotedTextIsOneItemWithItsCommasBlanksAndLineEnds) {
    EXPECT_EQ(Items("\"a, b \",c"), Texts({"a, b ", "c"}));
    EXPECT_EQ(Items("  \"x\"  \r\ny"), Texts({"x", "y"}));
    EXPECT_EQ(Items("\"two\r\nlines\",z"), Texts({"two\r\nlines", "z"}));
    EXPECT_EQ(Items("\"\",q"), Texts({"", "q"}));
}

TEST_F(TextReading, WhatFollowsAClosingQuoteIsPassedOver) {
    EXPECT_EQ(Items("\"a\" rest,b"), Texts({"a", "b"}));
}

TEST_F(TextReading, AQuoteInsideAnItemIsACharacter) {
    EXPECT_EQ(Items("5\" pipe,b"), Texts({"5\" pipe", "b"}));
}

TEST_F(TextReading, AFileCutInsideAQuoteEndsTheItem) {
    EXPECT_EQ(Items("\"never closed"), Texts({"never closed"}));
    EXPECT_EQ(Items("a,\""), Texts({"a", ""}));
}

TEST_F(TextReading, PastTheEndIsError62) {
    TextReader reader(folder.Write(QStringLiteral("a.txt"), "a"));
    EXPECT_EQ(reader.InputItem(), QStringLiteral("a"));
    EXPECT_TRUE(reader.AtEnd());
    ExpectError(62, [&] { reader.InputItem(); });
    ExpectError(62, [&] { reader.LineInput(); });
}

TEST_F(TextReading, EveryByteComesThrough) {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            bytes.append(static_cast<char>(byte));
    const QStringList lines = Lines(bytes);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0].size(), bytes.size());
    EXPECT_EQ(lines[0][0], QChar(u'\0'));
    EXPECT_TRUE(lines[0].contains(QChar(0x20AC))) << "0x80 is the euro sign";
}

TEST_F(TextReading, TheNameIsFoundWhateverItsLetterCase) {
    folder.Write(QStringLiteral("Sub/Mixed.TXT"), "found");
    TextReader reader(folder.Path(QStringLiteral("sUB/mIXED.txt")));
    EXPECT_EQ(reader.LineInput(), QStringLiteral("found"));
}

TEST_F(TextReading, AMissingFileIsError53AndAMissingFolderError76) {
    ExpectError(53, [&] { TextReader reader(folder.Path(QStringLiteral("none.txt"))); });
    ExpectError(76, [&] { TextReader reader(folder.Path(QStringLiteral("none/none.txt"))); });
}

TEST_F(TextReading, AFolderIsError75) {
    ExpectError(75, [&] { TextReader reader(folder.MakeFolder(QStringLiteral("dir"))); });
}

TEST_F(TextReading, APipeIsError75AndBlocksNobody) {
    const QString pipe = folder.Path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    ExpectError(75, [&] { TextReader reader(pipe); });
}

TEST_F(TextReading, ADeviceIsError75) {
    ExpectError(75, [&] { TextReader reader(QStringLiteral("/dev/zero")); });
}

TEST_F(TextReading, AFileWithoutPermissionIsError70) {
    const QString path = folder.Write(QStringLiteral("a.txt"), "a");
    ASSERT_EQ(chmod(folder.Path().toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(chmod(path.toLocal8Bit().constData(), 0), 0);
    const OrdinaryUser user;
    if (!user.Possible())
        GTEST_SKIP() << "root may read everything and cannot be another user here";
    ExpectError(70, [&] { TextReader reader(path); });
}

TEST_F(TextReading, AnEndlessItemIsError7) {
    const QString path = folder.Write(QStringLiteral("huge.txt"), "");
    ASSERT_EQ(truncate(path.toLocal8Bit().constData(), 17 * 1024 * 1024), 0);
    ExpectError(7, [&] { TextReader(path).InputItem(); });
    ExpectError(7, [&] { TextReader(path).LineInput(); });
}

TEST(FirstItem, FollowsTheRulesOfTheReader) {
    EXPECT_EQ(FirstItem(QStringLiteral("PUMP1:301")), QStringLiteral("PUMP1:301"));
    EXPECT_EQ(FirstItem(QStringLiteral("  a b  ,c")), QStringLiteral("a b"));
    EXPECT_EQ(FirstItem(QStringLiteral(" \"a, b \" x,c")), QStringLiteral("a, b "));
    EXPECT_EQ(FirstItem(QStringLiteral("\"cut")), QStringLiteral("cut"));
    EXPECT_EQ(FirstItem(QStringLiteral("\"")), QString());
    EXPECT_EQ(FirstItem(QStringLiteral(",a")), QString());
    EXPECT_EQ(FirstItem(QStringLiteral("   ")), QString());
    EXPECT_EQ(FirstItem(QString()), QString());
}

TEST_F(TextReading, AFileBeyondAllSenseIsRefusedBeforeItFillsTheMemory) {
    QFile file(folder.Write(QStringLiteral("a.txt"), ""));
    ASSERT_TRUE(file.resize(64 * 1024 * 1024));
    EXPECT_FALSE(TextReader(file.fileName()).AtEnd());
    ASSERT_TRUE(file.resize(file.size() + 1));
    ExpectError(ErrorNumber::OutOfMemory, [&] { TextReader reader(file.fileName()); });
}
