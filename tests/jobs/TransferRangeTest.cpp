#include "jobs/TransferRange.h"

#include "session/Globals.h"
#include <gtest/gtest.h>

namespace {
constexpr AddressRange limits{70, 219};

struct Answer {
    QString message;
    int resetEntry = -1;
    int resetValue = 0;
    bool operator==(const Answer&) const = default;
};

Answer Check(int left, const char* from, const char* to) {
    const auto refusal =
        CheckRange(left, QString::fromLatin1(from), QString::fromLatin1(to), limits);
    if (!refusal)
        return {};
    return {refusal->message, refusal->resetEntry.value_or(-1), refusal->resetValue};
}

const Answer fine;
const Answer notNumeric{QStringLiteral("Only Numerical Data Allowed.")};
const Answer notWhole{QStringLiteral("Please Use Whole Numbers Only.")};
const Answer fromOut{QStringLiteral("Entry is out of Range (70-219)"), 0, 70};
const Answer toOut{QStringLiteral("Entry is out of Range (70-219)"), 1, 219};
const Answer reversed{QStringLiteral("TO Can Not Be Greater Than FROM")};
} // namespace

TEST(TransferRange, EntriesWithinTheRangeAreTaken) {
    EXPECT_EQ(Check(0, "70", "219"), fine);
    EXPECT_EQ(Check(1, "100", "100"), fine);
    EXPECT_EQ(Check(1, " 100 ", "0110"), fine);
}

TEST(TransferRange, LettersAndEmptyTextAreRefusedFirst) {
    EXPECT_EQ(Check(0, "abc", "110"), notNumeric);
    EXPECT_EQ(Check(0, "", "110"), notNumeric);
    EXPECT_EQ(Check(1, "100", "11O"), notNumeric);
    EXPECT_EQ(Check(1, "100", "1.x"), notNumeric);
}

TEST(TransferRange, PointsAreRefusedBeforeTheRange) {
    EXPECT_EQ(Check(0, "10.5", "110"), notWhole);
    EXPECT_EQ(Check(1, "100", "300.0"), notWhole);
}

TEST(TransferRange, FromOutsideGoesBackToTheLowEnd) {
    EXPECT_EQ(Check(0, "69", "110"), fromOut);
    EXPECT_EQ(Check(0, "220", "110"), fromOut);
    EXPECT_EQ(Check(0, "-100", "110"), fromOut);
    EXPECT_EQ(Check(0, "99999999999999999999", "110"), fromOut);
}

TEST(TransferRange, ToOutsideGoesBackToTheHighEnd) {
    EXPECT_EQ(Check(1, "100", "69"), toOut);
    EXPECT_EQ(Check(1, "100", "1e9"), toOut);
}

TEST(TransferRange, FromIsLookedAtBeforeTo) {
    EXPECT_EQ(Check(1, "1", "1"), fromOut);
    EXPECT_EQ(Check(0, "100", "abc"), toOut);
}

TEST(TransferRange, ReversedIsToldOnlyAfterBothAreInRange) {
    EXPECT_EQ(Check(1, "110", "100"), reversed);
    EXPECT_EQ(Check(0, "110", "100"), reversed);
    EXPECT_EQ(Check(1, "300", "100"), fromOut);
    EXPECT_EQ(Check(1, "110", "60"), toOut);
}

TEST(TransferRange, LimitsAreThoseOfTheBoard) {
    const struct {
        qint16 board, first, last, fileFirst, fileLast;
    } rows[] = {{50, 32, 8175, 0, 8175}, {68, 32, 7167, 0, 7167}, {49, 70, 219, 70, 219},
                {51, 70, 219, 70, 219},  {66, 70, 219, 70, 219},  {0, 70, 219, 70, 219}};
    for (const auto& row : rows) {
        const DataImage& image = DataImageOf(row.board);
        EXPECT_EQ(image.standard.first, row.first) << row.board;
        EXPECT_EQ(image.standard.last, row.last) << row.board;
        EXPECT_EQ(image.file.first, row.fileFirst) << row.board;
        EXPECT_EQ(image.file.last, row.fileLast) << row.board;
        const bool large = row.board == 50 || row.board == 68;
        for (const int address : {155, 156, 300, 511, 512})
            EXPECT_EQ(image.skipped.Contains(address), large && address > 155 && address < 512);
    }
}

TEST(TransferRange, ChoiceGivesTheRange) {
    const AddressRange before{1, 2};
    const QString from = QStringLiteral("100");
    const QString to = QStringLiteral("110");
    const AddressRange standard = ChosenRange(RangeChoice::Standard, limits, from, to, before);
    EXPECT_EQ(standard.first, 70);
    EXPECT_EQ(standard.last, 219);
    const AddressRange range = ChosenRange(RangeChoice::Range, limits, from, to, before);
    EXPECT_EQ(range.first, 100);
    EXPECT_EQ(range.last, 110);
    const AddressRange neither = ChosenRange(RangeChoice::Neither, limits, from, to, before);
    EXPECT_EQ(neither.first, 1);
    EXPECT_EQ(neither.last, 2);
}

TEST(TransferRange, CaptionNamesTheSetIfItExists) {
    EXPECT_EQ(TransferCaption(XferMode::Download, QStringLiteral("Press.hdn")),
              "Target Board Data Download - [Press.hdn]");
    EXPECT_EQ(TransferCaption(XferMode::Upload, QString()), "Target Board Data Upload");
}
