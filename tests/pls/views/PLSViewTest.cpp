#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "pls/PLSBoards.h"
#include "PLSViewUnderTest.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include <QApplication>
#include <QHeaderView>
#include <QTest>

namespace {
using PLSView = PLSViewUnderTest;

const QByteArray standardPCF = "163600012100005020030350"
                               "00401200"
                               "0000000000000000%\r\n";
const QByteArray standardPCFBothOn = "163603012100005020030350"
                                     "00401200"
                                     "0000000000000000%\r\n";
const QByteArray r6500PCF = "3210005001002003004005006007255"
                            "0000000000000000%\r\n";
} // namespace

TEST_F(PLSView, APCFFileOfTheR6500LayoutShowsFrame0AndItsValues) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF(r6500PCF);
    Show("PCF", [this] {
        EXPECT_TRUE(FrameIsShown(0));
        EXPECT_FALSE(FrameIsShown(1));
        EXPECT_FALSE(FrameIsShown(2));
        EXPECT_EQ(Values(0, 10),
                  (QStringList{"32", "1000", "5", "1", "2", "3", "4", "5", "6", "7", "255"}));
        EXPECT_EQ(view_->windowTitle(), QString("SET - R6500(PLS)"));
    });
}

TEST_F(PLSView, APCFFileOfAnyOtherBoardShowsFrame1AndItsValues) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF(standardPCFBothOn);
    Show("pcf", [this] {
        EXPECT_FALSE(FrameIsShown(0));
        EXPECT_TRUE(FrameIsShown(1));
        EXPECT_FALSE(FrameIsShown(2));
        EXPECT_EQ(Values(11, 21), (QStringList{"16", "360", "12", "Yes", "100", "+-5", "20",
                                               "30-350", "Yes", "40 RPM", "1200 RPM"}));
    });
}

TEST_F(PLSView, WithBit0OfTheOptionsClearTheBrakeWearRowsShowTheirRestingValues) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF(standardPCF);
    Show("PCF", [this] {
        EXPECT_EQ(Values(14, 18), (QStringList{"No", "000", "+-0", "1", "000-000"}));
        EXPECT_EQ(Values(19, 21), (QStringList{"No", "0000 RPM", "0000 RPM"}));
    });
}

TEST_F(PLSView, ACHLFileThatListsOnlySomeChannelsShowsStarsForTheOthers) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(StandardCHL());
    Show("CHL", [this] {
        EXPECT_TRUE(FrameIsShown(2));
        EXPECT_FALSE(FrameIsShown(0));
        EXPECT_FALSE(FrameIsShown(1));
        EXPECT_EQ(Row(0), QString("CHANNEL NUMBER:|ON POS|Off POS"));
        EXPECT_EQ(Row(7), QString(" CH2 - |****|****"));
        EXPECT_EQ(Row(17), QString(" CH7 - |****|****"));
        EXPECT_EQ(Row(19), QString(" CH10 - CLUTCH|0|180"));
        EXPECT_EQ(Row(33), QString(" CH17 - |****|****"));
        EXPECT_EQ(Row(35), QString("||"));
    });
}

TEST_F(PLSView, AChannelHeadingShowsTheLabelOfTheFile) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(StandardCHL());
    Show("CHL", [this] {
        EXPECT_EQ(Row(1), QString(" CH0 - GLUE GUN, LEFT|10|20"));
        EXPECT_EQ(Row(2), QString("|100|130"));
        EXPECT_EQ(Row(3), QString("|350|15"));
        EXPECT_EQ(Row(4), QString("||"));
        EXPECT_EQ(Row(5), QString(" CH1 - REJECT GATE OF LINE 2|****|****"));
    });
}

TEST_F(PLSView, GPLSOfAnOpenTimingViewIsUnchangedWhileTheViewIsUpAndAfterIt) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF(r6500PCF);
    gPLS.Channels = 16;
    gPLS.Chan[3] = OnOff({{1, 2}});
    gPLS.CHLText = QStringLiteral("kept");
    const PLSRecord before = gPLS;
    Show("CHL", [&] { EXPECT_EQ(gPLS, before); });
    EXPECT_EQ(gPLS, before);
}

TEST_F(PLSView, GPLSIsUnchangedWhenTheFilesFail) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:991:00:00:00\r\n");
    gPLS.Channels = 32;
    const PLSRecord before = gPLS;
    dialogs_.ExpectBox(ErrorReportText(RunTimeError(ErrorNumber::SubscriptOutOfRange)),
                       MsgStyle::Critical, "ReadPLSFileData()", MsgAnswer::Ok);
    Show("CHL", [&] { EXPECT_EQ(Row(1), QString(" CH0 - |****|****")); });
    EXPECT_EQ(gPLS, before);

    folder_.Write("SET.hdn", "\r\n");
    ExpectError(ErrorNumber::InvalidProcedureCall,
                [this] { frmPLSView(dialogs_).ShowMe(folder_.Path("SET.PCF")); });
    EXPECT_EQ(gPLS, before);
}

TEST_F(PLSView, AProgramSetOfNoPLSBoardShowsEmptyValues) {
    folder_.Write("SET.hdn", "2\r\n");
    WritePCF(standardPCFBothOn);
    WriteCHL(StandardCHL());
    Show("PCF", [this] {
        EXPECT_TRUE(FrameIsShown(1));
        EXPECT_EQ(Values(11, 21).join(QString()), QString());
    });
    Show("CHL", [this] {
        EXPECT_EQ(Row(1), QString("||"));
        EXPECT_GT(Channels().Rows(), 1);
    });
}

TEST_F(PLSView, ASetOfIndex68ShowsTheStandardFrame) {
    folder_.Write("SET.hdn", "D\r\n");
    Show("PCF", [this] {
        EXPECT_TRUE(FrameIsShown(1));
        EXPECT_EQ(Value(11), QString("8"));
        EXPECT_EQ(Value(12), QString("360"));
    });
}

TEST_F(PLSView, AnyOtherExtensionShowsNoFrame) {
    WriteHdn(PLSBoardIndex::K2041);
    Show("HEX", [this] {
        for (int frame = 0; frame < 3; ++frame)
            EXPECT_FALSE(FrameIsShown(frame)) << frame;
    });
}

TEST_F(PLSView, TheGridNeverHasFewerRowsThanFit) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF("080360\r\n");
    Show("CHL", [this] {
        view_->resize(600, 900);
        QApplication::processEvents();
        const int rowHeight = Channels().verticalHeader()->defaultSectionSize();
        EXPECT_EQ(Channels().Rows(), Channels().height() / rowHeight - 1);
        EXPECT_EQ(Row(1), QString(" CH0 - |****|****"));
        EXPECT_EQ(Row(17), QString("||"));
        view_->resize(600, 300);
        QApplication::processEvents();
        EXPECT_GE(Channels().Rows(), 17);
    });
}

TEST_F(PLSView, ThePositionColumnsKeepTheirWidthAndTheHeadingTakesTheRest) {
    WriteHdn(PLSBoardIndex::K2041);
    Show("CHL", [this] {
        const int before = Channels().columnWidth(0);
        const int on = Channels().columnWidth(1);
        view_->resize(view_->width() + 100, view_->height());
        QApplication::processEvents();
        EXPECT_EQ(Channels().columnWidth(1), on);
        EXPECT_EQ(Channels().columnWidth(2), on);
        EXPECT_EQ(Channels().columnWidth(0), before + 100);
    });
}

TEST_F(PLSView, OKReturnAndEscapeCloseIt) {
    WriteHdn(PLSBoardIndex::K2041);
    Show("PCF", [this] {
        QTest::mouseClick(Part("cmdOk"), Qt::LeftButton);
        EXPECT_FALSE(view_->isVisible());
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
        Show("CHL", [this, key] {
            QTest::keyClick(QApplication::focusWidget(), key);
            EXPECT_FALSE(view_->isVisible()) << key;
        });
}

TEST_F(PLSView, ItStandsAtTheMainWindowsCornerAndIsNoLargerThanIt) {
    WriteHdn(PLSBoardIndex::K2041);
    QWidget main;
    main.setGeometry(30, 40, 700, 420);
    main.show();
    Show(
        "CHL",
        [&] {
            EXPECT_EQ(view_->pos(), main.geometry().topLeft());
            EXPECT_LE(view_->width(), 700);
            EXPECT_LE(view_->height(), 420);
        },
        &main);
}

TEST_F(PLSView, ThousandsOfSetpointsShowAtOnce) {
    WriteHdn(PLSBoardIndex::R6500);
    WriteCHL(":0360\r\n:0000\r\n:001:000:000:000\r\n" +
             QByteArray("|00100020\r\n").repeated(32000) + "%\r\n");
    Show("CHL", [this] {
        EXPECT_EQ(Row(32000), QString("|10|20"));
        EXPECT_EQ(Row(32002), QString(" CH1 - |****|****"));
    });
}
