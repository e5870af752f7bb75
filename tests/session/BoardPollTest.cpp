#include "SessionUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;
const Bytes faultRead = {0xFF, 0x01, 0x1F, 0xF0};
const Bytes offsetRead = {0xFF, 0x28, 0x55, 0x55};

// What one tick sends while it is online and no mode is entered.
class BoardPoll : public testing::Test, protected SessionUnderTest {
protected:
    BoardPoll() {
        SelectBoard("3\r\n"); // a PLC board
        GoOnlineInBrowser();
        port.AnswerLikeBoard(true);
    }
    void Activate(const QString& view) {
        views.visible.insert(view);
        views.active = view;
    }
    // The fault register answers its low address byte as an echo, which would be a fault code.
    void ExpectFaultRead() {
        AnswerFaultCode(0, true);
        update.Tick();
        EXPECT_EQ(port.Sent(), faultRead);
    }
    void ExpectOffsetRead() {
        update.Tick();
        EXPECT_EQ(port.Sent(), offsetRead);
        EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently ON-LINE"));
    }
    void ExpectNoTraffic() {
        update.Tick();
        EXPECT_EQ(port.Sent(), Bytes{});
    }
};
} // namespace

TEST_F(BoardPoll, WithTheStatusTableActiveReadsTheFaultCode) {
    Activate(StatusTable());
    ExpectFaultRead();
}

TEST_F(BoardPoll, WithTheTrendingViewActiveReadsTheFaultCode) {
    Activate(Trending());
    ExpectFaultRead();
}

TEST_F(BoardPoll, WithTheTimingViewActiveReadsTheOffsetAsKeepAlive) {
    Activate(Timing());
    ExpectOffsetRead();
}

TEST_F(BoardPoll, WithAPlsBoardAndTheTimingViewNoFaultTextIsShown) {
    SelectBoard("7\r\n");
    Activate(Timing());
    AcceptHandshake();
    port.Replies({0x05, 0x00}); // an offset, and no fault code
    update.Tick();
    EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently ON-LINE"));
}

TEST_F(BoardPoll, WithTheTargetBoardViewReadsTheFaultCodeWhateverIsActive) {
    views.visible = {TargetBoardView(), Timing()};
    views.active = Timing();
    ExpectFaultRead();
}

TEST_F(BoardPoll, WithTheStatusTableVisibleButTheBrowserActiveDoesNotPoll) {
    views.visible = {StatusTable()};
    ExpectNoTraffic();
}

TEST_F(BoardPoll, WithTheTimingOrTrendingViewVisibleButNotActiveDoesNotPoll) {
    views.visible = {Timing()};
    ExpectNoTraffic();
    views.visible = {Trending()};
    ExpectNoTraffic();
    views.active = QString();
    ExpectNoTraffic();
}

TEST_F(BoardPoll, InTheBrowserReadsTheFaultCodeOfAPlcBoard) {
    ExpectFaultRead();
}

TEST_F(BoardPoll, InTheBrowserReadsTheOffsetOfAPlsBoard) {
    for (const char* plsBoard : {"7", ">", "?", "@", "C", "E"}) {
        SelectBoard(plsBoard);
        port.ForgetSent();
        ExpectOffsetRead();
    }
}

TEST_F(BoardPoll, ASetWithoutABoardFileCountsAs68AndTheFaultCodeIsRead) {
    views.selectedPath = directory.filePath(QStringLiteral("Missing.hdn"));
    ExpectFaultRead();
}

TEST_F(BoardPoll, AnEmptyBoardFileCountsAs68AndTheFaultCodeIsRead) {
    SelectBoard("");
    ExpectFaultRead();
}

TEST_F(BoardPoll, ASiblingOfTheSetLeadsToItsBoardFile) {
    SelectBoard("7");
    views.selectedPath = directory.filePath(QStringLiteral("set.ldt"));
    ExpectOffsetRead();
}

TEST_F(BoardPoll, ABoardFileThatCannotBeReadIsReportedOnceForEachSet) {
    SelectBoard("\r\n");
    const QString text =
        QStringLiteral("Error Number = 5\r\n\r\nInvalid procedure call or argument");
    dialogs.ExpectBox(text, 16, QStringLiteral("Quentor"), 1);
    ExpectNoTraffic();
    ExpectNoTraffic();
    WriteFile(QStringLiteral("Other.hdn"), ",\r\n");
    views.selectedPath = directory.filePath(QStringLiteral("Other.hdn"));
    dialogs.ExpectBox(text, 16, QStringLiteral("Quentor"), 1);
    ExpectNoTraffic();
    SelectBoard("3");
    views.selectedPath = directory.filePath(QStringLiteral("Set.hdn"));
    ExpectFaultRead();
    SelectBoard(",");
    dialogs.ExpectBox(text, 16, QStringLiteral("Quentor"), 1);
    update.Tick();
}

TEST_F(BoardPoll, DuringAnUploadStaysOffTheLine) {
    link.SetInUploadMode(true);
    views.visible = {TargetBoardView()};
    ExpectNoTraffic();
    EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently ON-LINE"));
}

TEST_F(BoardPoll, WhileAReplyTimeOutIsUnderWayStaysOffTheLine) {
    link.SetCommErrorAlert(true);
    ExpectNoTraffic();
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(BoardPoll, OfflineStaysOffTheLine) {
    link.SetOnlineMode(false);
    link.SetCommError(true); // so that the port is left as it is
    ExpectNoTraffic();
}

TEST_F(BoardPoll, MakesOneReadATickAtTheMost) {
    ExpectFaultRead();
    port.ForgetSent();
    AnswerFaultCode(0, false);
    update.Tick();
    EXPECT_EQ(port.Sent(), (Bytes{0x1F, 0xF0}));
}
