#include "controls/entry/EntryRules.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>

namespace {
constexpr EntryRange address{1, 32};
}

TEST(EntryRules, AcceptsTheNumbersFromMinToMax) {
    EXPECT_TRUE(EntryRules::Accepts("1", address));
    EXPECT_TRUE(EntryRules::Accepts("32", address));
    EXPECT_TRUE(EntryRules::Accepts("05", address));
    EXPECT_TRUE(EntryRules::Accepts(" 5 ", address));
    EXPECT_FALSE(EntryRules::Accepts("0", address));
    EXPECT_FALSE(EntryRules::Accepts("33", address));
    EXPECT_FALSE(EntryRules::Accepts("-1", address));
    EXPECT_TRUE(EntryRules::Accepts("-1", EntryRange{-5, 5}));
}

TEST(EntryRules, RefusesWhatIsNoNumberAsANumberOutOfRange) {
    for (const char* text : {"", " ", "-", "abc", "5a", "5 5", "&H5", "--5", "5-"})
        EXPECT_FALSE(EntryRules::Accepts(text, address)) << text;
}

// The link drops a decimal point, so that "12.5" would arrive as 125.
TEST(EntryRules, RefusesNumbersThatTheLinkWouldReadAsOthers) {
    for (const char* text : {"12.5", "5.", "1e1", "1,0", "+5"})
        EXPECT_FALSE(EntryRules::Accepts(text, address)) << text;
}

TEST(EntryRules, RefusesNumbersBeyondEveryType) {
    EXPECT_FALSE(EntryRules::Accepts("99999999999999999999999999", address));
    EXPECT_FALSE(EntryRules::Accepts("4294967301", address)); // 5 in 32 bits
}

TEST(EntryRules, RefusalNamesMinAndMax) {
    EXPECT_EQ(EntryRules::Refusal(address), "Only a Number Between 1 and 32 can be Entered");
}

TEST(EntryRules, FirstEscapeRestoresAndTheSecondLeaves) {
    EntryRules rules(2);
    rules.GotFocus(0, "05");
    EXPECT_EQ(rules.EscapePressed(0).text, "5");
    const EntryRules::Escape second = rules.EscapePressed(0);
    EXPECT_EQ(second.text, "5");
    EXPECT_TRUE(second.leaves);
    EXPECT_FALSE(rules.EscapePressed(0).leaves);
}

TEST(EntryRules, AnotherKeyOrAnotherEntryForgetsTheEscape) {
    EntryRules rules(2);
    rules.GotFocus(0, "5");
    EXPECT_FALSE(rules.EscapePressed(0).leaves);
    rules.ForgetEscape();
    EXPECT_FALSE(rules.EscapePressed(0).leaves);
    rules.GotFocus(1, "7");
    EXPECT_FALSE(rules.EscapePressed(1).leaves);
    EXPECT_EQ(rules.Remembered(0), "5");
    EXPECT_EQ(rules.Remembered(1), "7");
}

TEST(EntryRules, ATextWithoutANumberIsRememberedAs0) {
    EntryRules rules(1);
    rules.GotFocus(0, "-");
    EXPECT_EQ(rules.Remembered(0), "0");
}

TEST(EntryRules, StepsStayWithinTheRange) {
    EXPECT_EQ(EntryRules::Stepped("5", 0, 1, address), 6);
    EXPECT_EQ(EntryRules::Stepped("05", 0, -1, address), 4);
    EXPECT_EQ(EntryRules::Stepped("32", 0, 1, address), 32);
    EXPECT_EQ(EntryRules::Stepped("1", 0, -1, address), 1);
    EXPECT_EQ(EntryRules::Stepped("400", 0, -1, address), 31);
    EXPECT_EQ(EntryRules::Stepped("abc", 7, 1, address), 8);
    EXPECT_EQ(EntryRules::Stepped("5", 0, 1, EntryRange{3, 2}), 3);
}
