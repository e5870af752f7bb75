#include "base/RunTimeError.h"

#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
struct Description {
    int number;
    const char* text;
};

constexpr Description descriptions[] = {
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {13, "Type mismatch"},
    {53, "File not found"},
    {57, "Device I/O error"},
    {58, "File already exists"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {8002, "Invalid Port Number"},
    {8005, "Port already open"},
    {32755, "Cancel was selected."},
    {12345, "Application-defined or object-defined error"},
};
} // namespace

TEST(RunTimeError, EachNumberHasItsDescription) {
    for (const auto& [number, text] : descriptions) {
        EXPECT_EQ(ErrorDescription(number), QString::fromLatin1(text)) << number;
        const RunTimeError error(number);
        EXPECT_EQ(error.Number(), number);
        EXPECT_EQ(error.Description(), QString::fromLatin1(text));
        EXPECT_STREQ(error.what(), text);
        EXPECT_EQ(error.Source(), QStringLiteral("Quentor"));
    }
}

TEST(RunTimeError, MayHaveADescriptionAndASourceOfItsOwn) {
    const RunTimeError error(68, QStringLiteral("no device"), QStringLiteral("MSComm"));
    EXPECT_EQ(error.Description(), QStringLiteral("no device"));
    EXPECT_EQ(error.Source(), QStringLiteral("MSComm"));
    EXPECT_STREQ(error.what(), "no device");
}

TEST(RunTimeError, ReportHasTheNumberTwoLineEndsAndTheDescription) {
    EXPECT_EQ(ErrorReportText(RunTimeError(53)),
              QStringLiteral("Error Number = 53\r\n\r\nFile not found"));
}

TEST(RunTimeError, AReportKeepsPercentSignsOfADescription) {
    EXPECT_EQ(ErrorReportText(RunTimeError(75, QStringLiteral("100%1 %2"))),
              QStringLiteral("Error Number = 75\r\n\r\n100%1 %2"));
}

TEST(RunTimeError, IsShownWithTitleAndStyleOfTheHandler) {
    ScriptedDialogs dialogs;
    dialogs.ExpectBox(QStringLiteral("Error Number = 76\r\n\r\nPath not found"), 64,
                      QStringLiteral("Open File"), 1);
    ShowErrorBox(dialogs, RunTimeError(76), QStringLiteral("Open File"), 64);
}

TEST(RunTimeError, TheCancelOfAFileDialogIsSilent) {
    ScriptedDialogs dialogs;
    ShowErrorBox(dialogs, RunTimeError(32755), QStringLiteral("Open File"), 16);
    EXPECT_TRUE(dialogs.Boxes().empty());
}

TEST(ToInteger16, PassesTheRangeAndRaisesBeyondIt) {
    EXPECT_EQ(ToInteger16(0), 0);
    EXPECT_EQ(ToInteger16(32767), 32767);
    EXPECT_EQ(ToInteger16(-32768), -32768);
    ExpectError(6, [] { ToInteger16(32768); });
    ExpectError(6, [] { ToInteger16(-32769); });
    ExpectError(6, [] { ToInteger16(65536); });
    ExpectError(6, [] { ToInteger16(std::numeric_limits<qint64>::max()); });
}
