#include "statustable/NameTables.h"

#include "base/RunTimeError.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

namespace {
// The .nam file of a K2014 with all that can stand in one.
constexpr const char* sample = "005START\r\n"
                               "&\r\n"
                               "100COUNT\r\n"
                               "/\r\n"
                               "3DONE\r\n"
                               "#\r\n"
                               "101LEVEL\r\n"
                               "&\r\n"
                               "010PRESS\r\n";

NameTables Read(const QByteArray& bytes, int width = 3) {
    const TestFiles files;
    NameTables tables;
    ReadNameFile(files.Write("a.nam", bytes), NameKind::NicName, width, tables);
    return tables;
}

QString Name(const NameTables& tables, const char* address) {
    return NameOfVariable(tables, QString::fromLatin1(address), NameKind::NicName);
}

int ErrorOf(const QByteArray& bytes) {
    try {
        Read(bytes);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}
} // namespace

TEST(NameFile, NamesFlagsMemoryBitsAndInputs) {
    const NameTables tables = Read(sample);
    EXPECT_EQ(Name(tables, "F5"), QString("START"));
    EXPECT_EQ(Name(tables, "B100"), QString("COUNT"));
    EXPECT_EQ(Name(tables, "W100"), QString("COUNT"));
    EXPECT_EQ(Name(tables, "64H"), QString("COUNT"));
    EXPECT_EQ(Name(tables, "B100.3"), QString("DONE"));
    EXPECT_EQ(Name(tables, "B100.2"), QString());
    EXPECT_EQ(Name(tables, "B101"), QString("LEVEL"));
    EXPECT_EQ(Name(tables, "X10"), QString("PRESS"));
    EXPECT_EQ(Name(tables, "Y10"), QString());
}

TEST(NameFile, OutputsAndImageShareOneSection) {
    const NameTables tables = Read("&\r\n&\r\n&\r\n010VALVE\r\n/\r\n0COIL\r\n");
    EXPECT_EQ(Name(tables, "Y10"), QString("VALVE"));
    EXPECT_EQ(Name(tables, "I10"), QString("VALVE"));
    EXPECT_EQ(Name(tables, "Y10.0"), QString("COIL"));
    EXPECT_EQ(Name(tables, "I10.0"), QString("COIL"));
    EXPECT_EQ(Name(tables, "X10"), QString());
}

TEST(NameFile, SectionsAbove3AreDropped) {
    const NameTables tables = Read("&\r\n&\r\n&\r\n&\r\n010A\r\n&\r\n999B\r\n&\r\n005C\r\n");
    for (const char* address : {"F5", "B10", "X10", "Y10", "I10"})
        EXPECT_EQ(Name(tables, address), QString()) << address;
}

TEST(NameFile, ASectionMarkLeavesBitMode) {
    const NameTables tables = Read("005A\r\n/\r\n&\r\n100COUNT\r\n");
    EXPECT_EQ(Name(tables, "B100"), QString("COUNT"));
}

TEST(NameFile, ABitModeMarkAfterASectionMarkKeepsTheNumberOfThePreviousSection) {
    const NameTables tables = Read("&\r\n100COUNT\r\n&\r\n/\r\n2DOOR\r\n");
    EXPECT_EQ(Name(tables, "X100.2"), QString("DOOR"));
    EXPECT_EQ(Name(tables, "B100.2"), QString());
}

TEST(NameFile, BitsBeforeAnyNumberBelongToNumber0) {
    const NameTables tables = Read("&\r\n/\r\n4FIRST\r\n");
    EXPECT_EQ(Name(tables, "B0.4"), QString("FIRST"));
}

TEST(NameFile, TheBitIsNotUsedForFlags) {
    const NameTables tables = Read("005A\r\n/\r\n9LAST\r\n");
    EXPECT_EQ(Name(tables, "F5"), QString("LAST"));
}

TEST(NameFile, OtherSingleCharactersAndEmptyLinesAreIgnored) {
    const NameTables tables = Read("*\r\n\r\n7\r\n005A\r\n");
    EXPECT_EQ(Name(tables, "F5"), QString("A"));
    EXPECT_EQ(Name(tables, "F7"), QString());
}

TEST(NameFile, ACommaEndsAnItem) {
    const NameTables tables = Read("005A,006B\r\n");
    EXPECT_EQ(Name(tables, "F5"), QString("A"));
    EXPECT_EQ(Name(tables, "F6"), QString("B"));
}

TEST(NameFile, WidthIs3ForBoard49) {
    EXPECT_EQ(NameNumberWidth(49), 3);
    const NameTables tables = Read("0012ABC\r\n", NameNumberWidth(49));
    EXPECT_EQ(Name(tables, "F1"), QString("2ABC"));
}

TEST(NameFile, WidthIs4ForNoBoardAndForTheLargeMemories) {
    for (const qint16 board : {0, 50, 68})
        EXPECT_EQ(NameNumberWidth(board), 4) << board;
    for (const qint16 board : {51, 54, 56, 58, 61, 65, 66, 62})
        EXPECT_EQ(NameNumberWidth(board), 3) << board;
    const NameTables tables = Read("&\r\n8195TOP\r\n", 4);
    EXPECT_EQ(Name(tables, "B8195"), QString("TOP"));
}

TEST(NameFile, AShortLineIsANumberWithoutAText) {
    const NameTables tables = Read("005A\r\n05\r\n");
    EXPECT_EQ(Name(tables, "F5"), QString());
}

TEST(NameFile, NumbersAndBitsOutsideTheirTablesAreErrors) {
    EXPECT_EQ(ErrorOf("&\r\n&\r\n152X\r\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf("-01X\r\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf("&\r\n/\r\n8X\r\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(ErrorOf("&\r\n&\r\n151X\r\n/\r\n7X\r\n"), 0);
}

TEST(Nicname, AboveTheTableIsEmpty) {
    const NameTables tables = Read(sample);
    for (const char* address : {"B9000", "F1001", "X152", "B100.9", "B-1", "D99999999999"})
        EXPECT_EQ(Name(tables, address), QString()) << address;
}

TEST(Nicname, OfAShortAddressIsEmpty) {
    NameTables tables;
    tables.gNicMemory.Store(NameKind::NicName, 0, 0, "ZERO");
    EXPECT_EQ(Name(tables, ""), QString());
    EXPECT_EQ(Name(tables, "B"), QString());
    EXPECT_EQ(Name(tables, "B0"), QString("ZERO"));
}

TEST(LoadNicNames, ReadsBothFiles) {
    const TestFiles files;
    files.Write("a.nam", sample);
    files.Write("a.doc", "005Starts the press\r\n");
    NameTables tables;
    ScriptedDialogs dialogs;
    const NameFilesFound found =
        LoadNicNames(tables, files.Path("a.nam"), files.Path("a.doc"), 51, dialogs);
    EXPECT_TRUE(found.nicNames);
    EXPECT_TRUE(found.descriptions);
    EXPECT_EQ(NameOfVariable(tables, "F5", NameKind::NicName), QString("START"));
    EXPECT_EQ(NameOfVariable(tables, "F5", NameKind::Description), QString("Starts the press"));
}

TEST(LoadNicNames, WithoutADocFileTellsItOnce) {
    const TestFiles files;
    files.Write("a.nam", sample);
    NameTables tables;
    ScriptedDialogs dialogs;
    dialogs.ExpectBox("Unable to Open Descriptions File,\r\nFile Does Not Exist.", 64, "File Error",
                      1);
    const NameFilesFound found =
        LoadNicNames(tables, files.Path("a.nam"), files.Path("a.doc"), 51, dialogs);
    EXPECT_TRUE(found.nicNames);
    EXPECT_FALSE(found.descriptions);
}

TEST(LoadNicNames, WithoutANamFileGoesOnWithTheDocFile) {
    const TestFiles files;
    files.Write("a.doc", "005Starts\r\n");
    NameTables tables;
    ScriptedDialogs dialogs;
    dialogs.ExpectBox("Unable to Open NicName File,\r\nFile Does Not Exist.", 64, "File Error", 1);
    const NameFilesFound found =
        LoadNicNames(tables, files.Path("a.nam"), files.Path("a.doc"), 51, dialogs);
    EXPECT_FALSE(found.nicNames);
    EXPECT_EQ(NameOfVariable(tables, "F5", NameKind::Description), QString("Starts"));
}

TEST(LoadNicNames, EndsAtAnErrorAndKeepsWhatWasRead) {
    const TestFiles files;
    files.Write("a.nam", "005START\r\n&\r\n&\r\n999X\r\n010PRESS\r\n");
    files.Write("a.doc", "005Starts\r\n");
    NameTables tables;
    tables.gNicFlags.Store(NameKind::Description, 7, 0, "old");
    ScriptedDialogs dialogs;
    dialogs.ExpectBox("Error Number = 9\r\n\r\nSubscript out of range", 64,
                      "Load NicNames & Descriptions", 1);
    const NameFilesFound found =
        LoadNicNames(tables, files.Path("a.nam"), files.Path("a.doc"), 51, dialogs);
    EXPECT_TRUE(found.nicNames);
    EXPECT_FALSE(found.descriptions);
    EXPECT_EQ(NameOfVariable(tables, "F5", NameKind::NicName), QString("START"));
    EXPECT_EQ(NameOfVariable(tables, "X10", NameKind::NicName), QString());
    EXPECT_EQ(NameOfVariable(tables, "F7", NameKind::Description), QString());
}
