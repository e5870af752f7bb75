#include "PLSLinkTest.h"

#include <numeric>

namespace {
class SetPLSOffset : public PLSLinkTest {
protected:
    void AnswerPlace(int offset, int position, int scaleFactor) {
        AnswerWord(offset);
        AnswerWord(position);
        AnswerWord(scaleFactor);
    }
    // The word written by the call, which must be the last command on the line.
    int Written() const {
        const Bytes& sent = port.Sent();
        EXPECT_EQ(sent[13], 0x2A);
        return sent[14] + 256 * sent[15];
    }
};

class PLSConfigDownload : public PLSLinkTest {
protected:
    PLSConfigDownload() { std::iota(values.begin(), values.end(), qint16{1}); }
    std::array<qint16, 24> values{};
};
} // namespace

TEST_F(SetPLSOffset, ReadsOffsetPositionAndScaleAndWritesAWord) {
    AnswerPlace(10, 90, 360);
    TakeCommand(2);
    EXPECT_TRUE(link.SetPLSOffset(50));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0x55, 0xFF, 0x48, 0x55, 0x55, 0xFF, 0x18, 0x55,
                                  0x55, 0xFF, 0x2A, 50, 0, 0x38, 0x55, 0x55}));
}

TEST_F(SetPLSOffset, ARawPositionOf100WithOffset10OnScale360AndPosition0Writes110) {
    AnswerPlace(10, 100, 360);
    TakeCommand(2);
    EXPECT_TRUE(link.SetPLSOffset(0));
    EXPECT_EQ(Written(), 110);
}

TEST_F(SetPLSOffset, APositionEqualToTheScaleFactorIsAcceptedAndGivesTheRawReading) {
    AnswerPlace(10, 355, 360);
    TakeCommand(2);
    EXPECT_TRUE(link.SetPLSOffset(360));
    EXPECT_EQ(Written(), 5);
}

TEST_F(SetPLSOffset, GoesRoundTheCycle) {
    AnswerPlace(4000, 4000, 4096);
    TakeCommand(2);
    EXPECT_TRUE(link.SetPLSOffset(4095));
    EXPECT_EQ(Written(), (4096 + 8000 % 4096 - 4095) % 4096);
}

TEST_F(SetPLSOffset, APositionAboveTheScaleFactorIsRefused) {
    AnswerPlace(10, 100, 360);
    ExpectRefusal(
        QStringLiteral("Desired Position cannot be greater than Scale Factor of 360.\r\n\r\n"
                       "PLS Offset will not be Programmed."),
        QStringLiteral("Set PLS Offset"));
    EXPECT_FALSE(link.SetPLSOffset(361));
    EXPECT_EQ(port.Sent().size(), 12u);
}

TEST_F(SetPLSOffset, NothingIsWrittenAfterAReadThatFailed) {
    for (const int words : {0, 1, 2}) {
        link.SetCommError(false);
        for (int word = 0; word < words; ++word)
            AnswerWord(100);
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        EXPECT_FALSE(link.SetPLSOffset(0));
        EXPECT_EQ(TakeSent().size(), static_cast<std::size_t>(words * 4 + 3));
    }
    EXPECT_FALSE(link.SetPLSOffset(0));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(SetPLSOffset, NothingIsWrittenAfterAReadThatTimedOutTwice) {
    AnswerWord(10);
    for (int i = 0; i < 2; ++i) {
        AcceptHandshake();
        port.Silence();
        port.Reply(0x55);
    }
    EXPECT_FALSE(link.SetPLSOffset(0));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent().back(), 0xFF);
}

TEST_F(SetPLSOffset, AScaleFactorOfZeroIsNoCycle) {
    AnswerPlace(0, 0, 0);
    EXPECT_FALSE(link.SetPLSOffset(0));
}

TEST_F(PLSConfigDownload, SendsFourBlocksThenTheScaleFactor) {
    for (int block = 0; block < 4; ++block)
        TakeCommand(6);
    TakeCommand(2);
    EXPECT_TRUE(link.PLSConfigDownload(values, 4096));
    Bytes sent;
    for (int block = 0; block < 4; ++block) {
        const int first = 6 * block + 1;
        for (const int byte : {0xFF, 0x3B + 0x10 * block, first, first + 1, first + 2, first + 3,
                               first + 4, first + 5, 0x38, 0x55, 0x55})
            sent.push_back(byte);
    }
    for (const int byte : {0xFF, 0x1A, 0x00, 0x10, 0x38, 0x55, 0x55})
        sent.push_back(byte);
    EXPECT_EQ(port.Sent(), sent);
}

TEST_F(PLSConfigDownload, EndsAtABlockThatFails) {
    TakeCommand(6);
    AcceptHandshake();
    port.Replies({0x55, 0x55, 0xAA});
    EXPECT_FALSE(link.PLSConfigDownload(values, 360));
    EXPECT_EQ(port.Sent().size(), 11u + 5u);
}

TEST_F(PLSConfigDownload, TheResultIsThatOfTheScaleFactor) {
    for (int block = 0; block < 4; ++block)
        TakeCommand(6);
    AcceptHandshake();
    port.Reply(0xAA);
    EXPECT_FALSE(link.PLSConfigDownload(values, 360));
}

TEST_F(PLSConfigDownload, ValuesThatAreNoBytesAreNotSent) {
    for (const qint16 value : {qint16{-1}, qint16{256}}) {
        std::array<qint16, 24> wrong = values;
        wrong[23] = value;
        EXPECT_FALSE(link.PLSConfigDownload(wrong, 360));
    }
    EXPECT_FALSE(link.PLSConfigDownload(std::span(values).first(23), 360));
    EXPECT_FALSE(link.PLSConfigDownload(values, -1));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(PLSConfigDownload, MoreValuesThanTwentyFourAreLeftAlone) {
    for (int block = 0; block < 4; ++block)
        TakeCommand(6);
    TakeCommand(2);
    std::array<qint16, 30> more{};
    more[29] = 9999;
    EXPECT_TRUE(link.PLSConfigDownload(more, 360));
}
