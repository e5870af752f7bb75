#include "PLSLinkTest.h"

namespace {
class SingleSetpoint : public PLSLinkTest {
protected:
    void ExpectTooHigh(int value) {
        ExpectRefusal(QStringLiteral("Setpoint setting %1 is greater than scale factor.\r\n\r\n"
                                     "Channel can not be programmed.")
                          .arg(value),
                      QStringLiteral("PLS Single Setpoint"));
    }
};

class PulseTrain : public PLSLinkTest {
protected:
    PulseTrain() { AnswerWord(360); }
    void ExpectRefused(const QString& text) {
        ExpectRefusal(text + QStringLiteral("\r\n\r\nPLS Channel will not be Programmed."),
                      QStringLiteral("PLS Pulse Train"));
    }
    bool Passes(qint16 on, qint16 off, qint16 first = 0) {
        TakeCommand(6);
        return link.PulseTrain(5, on, off, first);
    }
};
using ClearPLSChan = PLSLinkTest;
const Bytes scaleRead{0xFF, 0x18, 0x55, 0x55};
} // namespace

TEST_F(SingleSetpoint, AddsARecordAfterTheScaleFactor) {
    AnswerWord(4096);
    TakeCommand(6);
    EXPECT_TRUE(link.SingleSetpoint(3, 300, 4095, false));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x18, 0x55, 0x55, 0xFF, 0x1B, 3, 0x2C, 0x01, 0xFF, 0x0F, 1,
                                  0x38, 0x55, 0x55}));
}

TEST_F(SingleSetpoint, WithClearChanSendsTheClearingRecordFirst) {
    AnswerWord(360);
    TakeCommand(6);
    TakeCommand(6);
    EXPECT_TRUE(link.SingleSetpoint(63, 10, 20, true));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x18, 0x55, 0x55,                                //
                                  0xFF, 0x1B, 63,   0,    0, 0,  0, 0, 0x38, 0x55, 0x55, //
                                  0xFF, 0x1B, 63,   10,   0, 20, 0, 1, 0x38, 0x55, 0x55}));
}

TEST_F(SingleSetpoint, OnEqualToTheScaleFactorIsRefusedOneLessIsAccepted) {
    AnswerWord(360);
    ExpectTooHigh(360);
    EXPECT_FALSE(link.SingleSetpoint(0, 360, 10, true));
    EXPECT_EQ(TakeSent(), scaleRead);
    AnswerWord(360);
    TakeCommand(6);
    EXPECT_TRUE(link.SingleSetpoint(0, 359, 10, false));
}

TEST_F(SingleSetpoint, OffEqualToTheScaleFactorIsRefusedOneLessIsAccepted) {
    AnswerWord(360);
    ExpectTooHigh(360);
    EXPECT_FALSE(link.SingleSetpoint(0, 10, 360, false));
    EXPECT_EQ(TakeSent(), scaleRead);
    AnswerWord(360);
    TakeCommand(6);
    EXPECT_TRUE(link.SingleSetpoint(0, 10, 359, false));
}

TEST_F(SingleSetpoint, OfBothTooHighOnlyOnIsNamed) {
    AnswerWord(360);
    ExpectTooHigh(400);
    EXPECT_FALSE(link.SingleSetpoint(0, 400, 500, false));
}

TEST_F(SingleSetpoint, ANegativePositionOrAnUnknownChannelIsNotSent) {
    for (const auto& [channel, on, off] :
         std::vector<std::array<qint16, 3>>{{0, -1, 5}, {0, 5, -1}, {-1, 5, 6}, {64, 5, 6}}) {
        AnswerWord(360);
        EXPECT_FALSE(link.SingleSetpoint(channel, on, off, true));
        EXPECT_EQ(TakeSent(), scaleRead);
    }
}

TEST_F(SingleSetpoint, WithCommErrorNothingIsSent) {
    link.SetCommError(true);
    EXPECT_FALSE(link.SingleSetpoint(0, 10, 20, true));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(SingleSetpoint, AScaleFactorThatCannotBeReadIsNoReasonForARefusal) {
    for (int i = 0; i < 2; ++i) {
        AcceptHandshake();
        port.Silence();
        port.Reply(0x55);
    }
    EXPECT_FALSE(link.SingleSetpoint(0, 10, 20, true)); // the dialogs expect no box
}

TEST_F(SingleSetpoint, AClearingRecordThatFailsIsTheEnd) {
    AnswerWord(360);
    AcceptHandshake();
    port.Replies({0x55, 0x54});
    EXPECT_FALSE(link.SingleSetpoint(0, 10, 20, true));
    EXPECT_EQ(port.Sent().size(), 4u + 2u + 2u);
}

TEST_F(SingleSetpoint, ALineThatDiesInTheLastBytesOfTheClearingPollIsTheEnd) {
    AnswerWord(360);
    AcceptHandshake();
    Acknowledge(6);
    port.Replies({0x55, 0x00});
    ExpectAlert(NoReplyAlert(), Answer::cancel);
    EXPECT_FALSE(link.SingleSetpoint(0, 10, 20, true));
}

TEST_F(ClearPLSChan, IsARecordOfZeros) {
    TakeCommand(6);
    EXPECT_TRUE(link.ClearPLSChan(8));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x1B, 8, 0, 0, 0, 0, 0, 0x38, 0x55, 0x55}));
}

TEST_F(ClearPLSChan, WithCommErrorNothingIsSent) {
    link.SetCommError(true);
    EXPECT_FALSE(link.ClearPLSChan(8));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(PulseTrain, SendsTheStartAndTheOnDivisionBeforeTheOffDivision) {
    EXPECT_TRUE(Passes(20, 100, 300));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x18, 0x55, 0x55, 0xFF, 0x2B, 5, 0x2C, 0x01, 20, 100, 0,
                                  0x38, 0x55, 0x55}));
}

TEST_F(PulseTrain, AnOffDivisionFrom128UpGoesOutAsItsByte) {
    EXPECT_TRUE(Passes(160, 200));
    EXPECT_EQ(Bytes(port.Sent().begin() + 6, port.Sent().begin() + 12),
              (Bytes{5, 0, 0, 160, 200, 0}));
}

TEST_F(PulseTrain, OfOneAndOneOn360Passes) {
    EXPECT_TRUE(Passes(1, 1));
}

TEST_F(PulseTrain, OfSevenAndOneOn360Passes) {
    EXPECT_TRUE(Passes(7, 1));
}

TEST_F(PulseTrain, OfSevenAndTwoOn360Passes) {
    EXPECT_TRUE(Passes(7, 2));
}

TEST_F(PulseTrain, OfFiveAndTwoOn360IsRefused) {
    ExpectRefused(QStringLiteral("ON Division Plus OFF Division\r\nMust be a Multiple of 360."));
    EXPECT_FALSE(link.PulseTrain(5, 5, 2, 0));
    EXPECT_EQ(port.Sent(), scaleRead);
}

TEST_F(PulseTrain, AnOnDivisionOf255Passes) {
    EXPECT_TRUE(Passes(255, 105));
}

TEST_F(PulseTrain, ADivisionOf256IsRefusedAfterTheSum) {
    ExpectRefused(QStringLiteral("ON Division or OFF Division Must be Less Than 255."));
    EXPECT_FALSE(link.PulseTrain(5, 256, 104, 0));
    AnswerWord(360);
    ExpectRefused(QStringLiteral("ON Division or OFF Division Must be Less Than 255."));
    EXPECT_FALSE(link.PulseTrain(5, 104, 256, 0));
    AnswerWord(360);
    ExpectRefused(QStringLiteral("ON Division Plus OFF Division\r\nMust be a Multiple of 360."));
    EXPECT_FALSE(link.PulseTrain(5, 256, 1, 0));
}

TEST_F(PulseTrain, ADivisionOfZeroIsRefusedFirst) {
    const QString refusal = QStringLiteral("ON Division and OFF Division Must be Greater Than 0.");
    ExpectRefused(refusal);
    EXPECT_FALSE(link.PulseTrain(5, 0, 360, 400));
    AnswerWord(360);
    ExpectRefused(refusal);
    EXPECT_FALSE(link.PulseTrain(5, 360, 0, 400));
    AnswerWord(360);
    ExpectRefused(refusal);
    EXPECT_FALSE(link.PulseTrain(5, -5, 5, 0)); // a sum of 0 divides nothing
}

TEST_F(PulseTrain, AStartFromTheScaleFactorUpIsRefused) {
    ExpectRefused(QStringLiteral("Start Position Must Not Be Greater Than 359."));
    EXPECT_FALSE(link.PulseTrain(5, 20, 100, 360));
    AnswerWord(360);
    EXPECT_TRUE(Passes(20, 100, 359));
}

TEST_F(PulseTrain, ANegativeStartIsNotSent) {
    EXPECT_FALSE(link.PulseTrain(5, 20, 100, -1));
    EXPECT_EQ(port.Sent(), scaleRead);
}

TEST_F(PulseTrain, AFailedRecordIsReported) {
    AcceptHandshake();
    port.Reply(0x00);
    dialogs.ExpectBox(QStringLiteral("Error Encountered while Programming Pulse Train.\r\n\r\n"
                                     "PLS Channel will not be Programmed."),
                      64, QStringLiteral("PLS Pulse Train"), 1);
    EXPECT_FALSE(link.PulseTrain(5, 20, 100, 0));
}

TEST_F(PulseTrain, ALineThatDiesInTheLastByteIsNoSuccess) {
    AcceptHandshake();
    Acknowledge(6);
    port.Replies({0x55, 0x00});
    ExpectAlert(NoReplyAlert(), Answer::cancel);
    EXPECT_FALSE(link.PulseTrain(5, 20, 100, 0));
}

TEST_F(PLSLinkTest, APulseTrainWithCommErrorIsRefusedWithoutAMessage) {
    link.SetCommError(true);
    EXPECT_FALSE(link.PulseTrain(5, 20, 100, 0));
    EXPECT_EQ(port.Sent(), Bytes{});
}
