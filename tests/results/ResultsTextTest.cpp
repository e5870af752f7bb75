#include "results/ResultsText.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QTimer>

namespace {
class ResultsText : public testing::Test {
protected:
    void SetUp() override { Forget(); }
    void TearDown() override { Forget(); }
    static void Forget() {
        gResultsText.clear();
        gResultsShown.clear();
    }
    QString Errors() { return ResultsFor(ResultsMode::CompileErrors, Hdn("PUMP"), clock); }
    QString Search(const char* set) { return ResultsFor(ResultsMode::NewSearch, Hdn(set), clock); }
    QString Hdn(const char* set) { return folder.Path(QLatin1String(set) + ".hdn"); }

    TestFolder folder;
    VirtualClock clock;
};
} // namespace

TEST_F(ResultsText, CompileErrorsAreHeadingAndBody) {
    folder.Write("PUMP.err", "Compiler 3.1\nPUMP\nERROR 5\n\nERROR 7\n");
    EXPECT_EQ(Errors(), "Compiler 3.1\r\nPUMP\r\nERROR 5\r\n\r\nERROR 7\r\n");
    EXPECT_EQ(gResultsText, QString());
}

TEST_F(ResultsText, AHeadingAloneIsText) {
    folder.Write("PUMP.err", "Compiler 3.1\r\nno errors\r\n");
    EXPECT_EQ(Errors(), "Compiler 3.1\r\nno errors\r\n");
}

TEST_F(ResultsText, ASecondSearchOnAnotherSetPutsTheNewResultsInFrontEachUnderItsOwnTag) {
    folder.Write("PUMP.gbl", "Search\r\nB100\r\nPUMP.lmn 12\r\n");
    folder.Write("FAN.gbl", "Search\r\nW200\r\n");
    EXPECT_EQ(Search("PUMP"), "-[PUMP]-\r\nSearch\r\nB100\r\nPUMP.lmn 12\r\n");
    const QString both = "-[FAN]-\r\nSearch\r\nW200\r\n"
                         "-[PUMP]-\r\nSearch\r\nB100\r\nPUMP.lmn 12\r\n";
    EXPECT_EQ(Search("FAN"), both);
    EXPECT_EQ(gResultsText, both);
}

TEST_F(ResultsText, CompileErrorsReplaceAndDoNotPileUp) {
    folder.Write("PUMP.gbl", "Search\r\nB100\r\n");
    folder.Write("PUMP.err", "Compiler\r\nPUMP\r\n");
    Search("PUMP");
    EXPECT_EQ(Errors(), "Compiler\r\nPUMP\r\n");
    EXPECT_EQ(gResultsText, "-[PUMP]-\r\nSearch\r\nB100\r\n");
}

TEST_F(ResultsText, StoredResultsAreThoseShownLast) {
    gResultsShown = "shown";
    EXPECT_EQ(ResultsFor(ResultsMode::Stored, QString(), clock), "shown");
}

TEST_F(ResultsText, AnErrFileThatStaysEmptyForMoreThanASecondRaisesTheBoundsError) {
    folder.Write("PUMP.err", "");
    const double start = clock.MonotonicSeconds();
    ExpectError(ErrorNumber::SubscriptOutOfRange, [&] { Errors(); });
    EXPECT_GE(clock.MonotonicSeconds() - start, 1.0);
}

TEST_F(ResultsText, FewerThanTwoLinesRaiseTheBoundsErrorAndKeepWhatWasFound) {
    gResultsText = "found before";
    folder.Write("PUMP.gbl", "Search\r\n");
    folder.Write("PUMP.err", "Compiler\r\n");
    ExpectError(ErrorNumber::SubscriptOutOfRange, [&] { Search("PUMP"); });
    ExpectError(ErrorNumber::SubscriptOutOfRange, [&] { Errors(); });
    EXPECT_EQ(gResultsText, "found before");
}

TEST_F(ResultsText, AMissingFileRaisesTheBoundsErrorAtOnce) {
    const double start = clock.MonotonicSeconds();
    ExpectError(ErrorNumber::SubscriptOutOfRange, [&] { Errors(); });
    ExpectError(ErrorNumber::SubscriptOutOfRange, [&] { Search("PUMP"); });
    EXPECT_EQ(clock.MonotonicSeconds(), start);
}

TEST_F(ResultsText, YieldsBeforeItLooksForTheFile) {
    QTimer::singleShot(0, [&] { folder.Write("PUMP.err", "Compiler\r\nPUMP\r\n"); });
    EXPECT_EQ(Errors(), "Compiler\r\nPUMP\r\n");
}

TEST_F(ResultsText, LongLinesArePartedAndNothingIsLost) {
    EXPECT_EQ(WithLongLinesParted("abcdefg\r\nxy\r\n", 3), "abc\r\ndef\r\ng\r\nxy\r\n");
    EXPECT_EQ(WithLongLinesParted("abc\r\nabc", 3), "abc\r\nabc");
    EXPECT_EQ(WithLongLinesParted("", 3), "");
    EXPECT_EQ(WithLongLinesParted("abcdefghi", 3).remove("\r\n"), "abcdefghi");
    const QString endless(1000000, 'x');
    EXPECT_EQ(WithLongLinesParted(endless, 4000).remove("\r\n"), endless);
}
