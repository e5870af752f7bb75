#include "ModelUnderTest.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "targetboard/BoardClock.h"
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int address1 = 8180;
constexpr int address2 = 8191;
constexpr int hours = 43012;
constexpr int year = 43017;

class SetupPages : public testing::Test, public ModelUnderTest {
protected:
    explicit SetupPages(int index = 65) : ModelUnderTest(index) {
        Poke(address1, 5);
        Poke(address2, 17);
        Poke(hours, 9);
    }
};
class SetupPagesK2016 : public SetupPages {
protected:
    SetupPagesK2016() : SetupPages(54) {}
};
class SetupPagesR6500 : public SetupPages {
protected:
    SetupPagesR6500() : SetupPages(68) {}
};
} // namespace

TEST_F(SetupPages, AnAddress5ShowsAs05AndAClockValue123As23) {
    Poke(year, 123);
    OpenOnline();
    EXPECT_EQ(SetupText(0), "05");
    EXPECT_EQ(SetupText(7), "23");
}

TEST_F(SetupPages, T7110ShowsBothAddresses) {
    Open();
    EXPECT_EQ(SetupText(1), "");
    Turns(1);
    EXPECT_EQ(SetupText(0), "05");
    EXPECT_EQ(SetupText(1), "17");
}

TEST_F(SetupPagesK2016, ShowsAddress1Only) {
    OpenOnline();
    EXPECT_EQ(SetupText(0), "05");
    EXPECT_EQ(SetupText(1), "");
    EXPECT_FALSE(Shown().controls.Setup(1).visible);
    EXPECT_EQ(SetupText(2), "09");
}

TEST_F(SetupPagesR6500, HasTheClockOffButForTheComputersClock) {
    OpenOnline();
    for (int i = 2; i < setupEntryCount; ++i) {
        EXPECT_EQ(SetupText(i), "-");
        EXPECT_FALSE(Shown().controls.Setup(i).enabled);
    }
    EXPECT_FALSE(Shown().controls.cmdSetToCurrTime());
    EXPECT_FALSE(Shown().controls.cmdSetToCurrDate());
    EXPECT_EQ(Shown().lblCurrTime, "08 : 05 : 07");
    EXPECT_EQ(Shown().lblCurrDate, "03 - 09 - 2017");
}

TEST_F(SetupPages, WhileTheUserTypesThePollLeavesTheEntryAloneUntilItIsLeft) {
    OpenOnline();
    model.SetupEntered(0);
    Poke(address1, 9);
    Turns(2);
    EXPECT_EQ(SetupText(0), "05");
    model.SetupAbandoned(0);
    Turns(1);
    EXPECT_EQ(SetupText(0), "09");
}

TEST_F(SetupPages, AnAcceptedTextIsWrittenAsItStands) {
    OpenOnline();
    model.SetupEntered(0);
    EXPECT_THAT(TakeWritten(), IsEmpty());
    model.SetupAccepted(0, "012");
    EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address1, 12}));
    EXPECT_EQ(SetupText(0), "012");
    Turns(1);
    EXPECT_EQ(SetupText(0), "12");
}

TEST_F(SetupPages, AStepOfTheUpDownIsWritten) {
    OpenOnline();
    model.SetupEntered(1);
    model.SetupStepped(1, "18");
    EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address2, 18}));
    EXPECT_FALSE(Shown().editing[1]);
}

TEST_F(SetupPages, NothingIsWrittenOfflineOrAfterAFailure) {
    OpenOnline();
    link.SetCommError(true);
    model.SetupAccepted(0, "12");
    model.SetupStepped(0, "13");
    model.cmdSetToCurrTime_Click();
    link.SetCommError(false);
    mode.GoOffline();
    model.SetupAccepted(0, "12");
    model.cmdSetToCurrDate_Click();
    EXPECT_THAT(TakeWritten(), IsEmpty());
}

TEST_F(SetupPages, ACutLineInThePollGoesOfflineAndTheValuesStay) {
    OpenOnline();
    Steps(4);
    CutLine();
    Turns(1);
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(SetupText(0), "05");
    EXPECT_FALSE(Shown().controls.Setup(0).enabled);
    EXPECT_FALSE(Shown().controls.Setup(7).enabled);
    MendLine();
    Poke(address1, 6);
    model.cmdGoOnline_Click();
    Turns(1);
    EXPECT_EQ(SetupText(0), "06");
    EXPECT_TRUE(Shown().controls.Setup(7).enabled);
}

TEST_F(SetupPages, ThePollLeavesTheRoundWhenTheLinkIsTakenOffline) {
    OpenOnline();
    Steps(4);
    TakeRead();
    mode.GoOffline();
    Turns(1);
    EXPECT_THAT(TakeRead(), IsEmpty());
}

TEST_F(SetupPages, TheTimeIsWrittenHourMinuteSecond) {
    OpenOnline();
    model.cmdSetToCurrTime_Click();
    EXPECT_THAT(TakeWritten(),
                ElementsAre(WrittenByte{43012, 8}, WrittenByte{43010, 5}, WrittenByte{43008, 7}));
}

TEST_F(SetupPages, TheDateIsWrittenMonthDayYearAndTheYear2017As17) {
    OpenOnline();
    model.cmdSetToCurrDate_Click();
    EXPECT_THAT(TakeWritten(),
                ElementsAre(WrittenByte{43016, 3}, WrittenByte{43015, 9}, WrittenByte{43017, 17}));
}

TEST_F(SetupPages, ACutLineStopsTheClockWritesAtTheFirst) {
    OpenOnline();
    CutLine();
    model.cmdSetToCurrDate_Click();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(dialogs.Boxes().size(), 1U);
    Turns(1);
    EXPECT_TRUE(Shown().controls.cmdGoOnline());
}

TEST_F(SetupPages, TheComputersClockRunsOfflineToo) {
    OpenOnline();
    CutLine();
    Turns(1);
    clock.SetWallClock(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59)));
    Turns(1);
    EXPECT_EQ(Shown().lblCurrTime, "23 : 59 : 59");
    EXPECT_EQ(Shown().lblCurrDate, "12 - 31 - 2026");
    clock.Wait(1.0);
    Turns(1);
    EXPECT_EQ(Shown().lblCurrTime, "00 : 00 : 00");
    EXPECT_EQ(Shown().lblCurrDate, "01 - 01 - 2027");
}

TEST_F(SetupPages, AnUnreadableSetIsAnErrorOfOpening) {
    files.Write("PUMP.rev", "AB\r\n");
    ExpectError(ErrorNumber::InvalidProcedureCall, [this] { model.Open(hdnFile); });
    EXPECT_FALSE(model.Running());
}

TEST(SetupEntries, AddressesLabelsAndRanges) {
    struct Row {
        const char16_t* address;
        const char16_t* label;
        int min, max;
    };
    constexpr Row rows[] = {{u"B8180", u"Current Network Address 1:", 1, 32},
                            {u"B8191", u"Current Network Address 2:", 1, 32},
                            {u"B43012", u"Hr.", 0, 23},
                            {u"B43010", u"Min.", 0, 59},
                            {u"B43008", u"Sec.", 0, 59},
                            {u"B43016", u"Mo.", 1, 12},
                            {u"B43015", u"Day", 1, 31},
                            {u"B43017", u"Yr.", 0, 99}};
    for (std::size_t i = 0; i < setupEntries.size(); ++i) {
        EXPECT_EQ(QString::fromUtf16(setupEntries[i].address), QString::fromUtf16(rows[i].address));
        EXPECT_EQ(QString::fromUtf16(setupEntries[i].label), QString::fromUtf16(rows[i].label));
        EXPECT_EQ(setupEntries[i].min, rows[i].min);
        EXPECT_EQ(setupEntries[i].max, rows[i].max);
    }
    EXPECT_EQ(SetupRefusalTitle(0), "Set-upCurrent Network Address 1:");
    EXPECT_EQ(SetupRefusalTitle(2), "Set-upHr.");
}

TEST(LastTwoCharacters, PadsAndCuts) {
    EXPECT_EQ(LastTwoCharacters("5"), "05");
    EXPECT_EQ(LastTwoCharacters("23"), "23");
    EXPECT_EQ(LastTwoCharacters("123"), "23");
    EXPECT_EQ(LastTwoCharacters(""), "00");
}
