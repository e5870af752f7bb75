#include "statustable/CommitCell.h"

#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

namespace {
CommitOutcome Address(const char* text, qint16 board = 49) {
    CommitRequest request;
    request.column = 1;
    request.cell = request.address = QString::fromLatin1(text);
    request.board = board;
    return DecideCommit(request);
}

CommitRequest Value(int column, const char* cell, const char* address) {
    CommitRequest request;
    request.column = column;
    request.cell = QString::fromLatin1(cell);
    request.address = QString::fromLatin1(address);
    request.board = 49;
    request.online = true;
    return request;
}

void ExpectWritten(const CommitRequest& request, const char* variable, const char* value) {
    const CommitOutcome outcome = DecideCommit(request);
    EXPECT_EQ(outcome.action, CommitAction::WriteValue);
    EXPECT_EQ(outcome.variable, QString(variable));
    EXPECT_EQ(outcome.value, QString(value));
}

void ExpectNotWritten(const CommitRequest& request) {
    const CommitOutcome outcome = DecideCommit(request);
    EXPECT_EQ(outcome.action, CommitAction::EndValue);
    EXPECT_EQ(outcome.cell, request.cell.toUpper());
}
} // namespace

TEST(CommitAddress, ValidOnesAreUpperCased) {
    const CommitOutcome outcome = Address("b100.3");
    EXPECT_EQ(outcome.action, CommitAction::AcceptAddress);
    EXPECT_EQ(outcome.cell, QString("B100.3"));
    EXPECT_EQ(outcome.working, QString("B100.3"));
}

TEST(CommitAddress, EnteredAs00FFHIsShownAsFFH) {
    const CommitOutcome outcome = Address("00ffh");
    EXPECT_EQ(outcome.action, CommitAction::AcceptAddress);
    EXPECT_EQ(outcome.cell, QString("FFH"));
    EXPECT_EQ(outcome.working, QString("B255"));
}

TEST(CommitAddress, InvalidOnesEmptyTheCell) {
    for (const char* text : {"B31", "B256", "W33", "X32", "100H", "B", "BAB", "B100.", "1FH"})
        EXPECT_EQ(Address(text).action, CommitAction::EmptyCell) << text;
    EXPECT_EQ(Address("100H", 50).action, CommitAction::AcceptAddress);
    EXPECT_EQ(Address("X10", 68).action, CommitAction::EmptyCell);
}

TEST(CommitAddress, InWhichACharacterWouldCountForNothingIsRefused) {
    // Read leniently these are B100, B200H, B32, B256 and F10.
    for (const char* text : {"B1E2", "2WFH", "W20H", "1X0H", "F1E1", "W1E2", "D1E2"})
        EXPECT_EQ(Address(text, 50).action, CommitAction::EmptyCell) << text;
    EXPECT_EQ(Address("1E2H", 50).action, CommitAction::AcceptAddress);
}

TEST(CommitAddress, AnEmptyCellEmptiesTheRow) {
    EXPECT_EQ(Address("").action, CommitAction::EmptyRow);
}

TEST(CommitValue, DecimalAndHexadecimalAreWrittenAsDecimal) {
    ExpectWritten(Value(2, "255", "B100"), "B100", "255");
    ExpectWritten(Value(2, "007", "W200"), "W200", "7");
    ExpectWritten(Value(3, "ff", "B100"), "B100", "255");
    ExpectWritten(Value(3, "270FFFFF", "d200"), "D200", "655359999");
    ExpectWritten(Value(2, "1", "B100.3"), "B100.3", "1");
    ExpectWritten(Value(2, "1", "f17"), "F17", "1");
}

TEST(CommitValue, OfAHexadecimalAddressGoesToItsByte) {
    ExpectWritten(Value(2, "5", "1F40H"), "B8000", "5");
}

TEST(CommitValue, OfAnOutputGoesToTheByteBehindIt) {
    ExpectWritten(Value(2, "5", "Y81"), "B58", "5");
    ExpectWritten(Value(3, "1", "Y81.2"), "B58.2", "1");
}

TEST(CommitValue, OfAnInputGoesNowhere) {
    ExpectNotWritten(Value(2, "5", "X10"));
    ExpectNotWritten(Value(3, "5", "I10"));
}

TEST(CommitValue, IsNotWrittenOfflineOrInACommunicationFailure) {
    CommitRequest request = Value(2, "5", "B100");
    request.online = false;
    ExpectNotWritten(request);
    request.online = request.commError = true;
    ExpectNotWritten(request);
    request.address = "Y81";
    ExpectNotWritten(request);
}

TEST(CommitValue, OfAnEmptyCellIsNothing) {
    ExpectNotWritten(Value(2, "", "B100"));
    ExpectNotWritten(Value(3, "", "B100"));
}

TEST(CommitValue, BesideNoAddressEmptiesTheCell) {
    EXPECT_EQ(DecideCommit(Value(2, "5", "")).action, CommitAction::EmptyCell);
}

TEST(CommitValue, BesideAnAddressThatIsNoneIsNotWritten) {
    for (const char* address : {"B1E2", "W20H", "B100.34", "B100.", "B-5"})
        EXPECT_EQ(DecideCommit(Value(2, "5", address)).action, CommitAction::EmptyCell) << address;
    ExpectWritten(Value(2, "5", "b 100"), "B 100", "5"); // of a table made by hand
}

TEST(CommitValue, ThatIsNoneIsNotReadAs0) {
    ExpectNotWritten(Value(2, "N/A", "Y81"));
    ExpectNotWritten(Value(3, "N/A", "Y81"));
}

TEST(CommitValue, FarTooLargeStaysTooLarge) {
    ExpectWritten(Value(3, "FFFFFFFFFFFFFFFFFF", "B100"), "B100", "4722366482869645213696");
}

TEST(CommitOther, ColumnsTakeNoEntries) {
    for (const int column : {0, 4, 5})
        EXPECT_EQ(DecideCommit(Value(column, "1", "B100")).action, CommitAction::None);
}
