#include "jobs/JobsFixture.h"

#include "base/Dialogs.h"

namespace {
constexpr int attention = 0xFF;
constexpr int writeMode = 0x02;
} // namespace

JobsFixture::JobsFixture() {
    GoOnline();
    gXferFile = PathOf(fileName);
}

JobsFixture::~JobsFixture() {
    gXferMode = gXferBoard = gXferFrom = gXferTo = gWaitJob = 0;
    gXferFile.clear();
    gHdnFile.clear();
}

void JobsFixture::ConnectTo(MSComm& other) {
    port.Reply(0x55);
    link.CloseRSComm();
    link.OpenRSComm(other);
    EXPECT_TRUE(link.OnlineMode());
}

void JobsFixture::BoardTakes(const std::vector<BoardByte>& bytes) {
    AcceptHandshake();
    for (const BoardByte& byte : bytes)
        AnswerWrite(byte.address / 256, byte.address % 256, byte.value);
}

void JobsFixture::BoardGives(const std::vector<BoardByte>& bytes) {
    AcceptHandshake();
    for (const BoardByte& byte : bytes)
        AnswerRead(byte.address / 256, byte.value);
}

void JobsFixture::LineIsCut() {
    for (int i = 0; i < 3; ++i)
        port.Silence();
    ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel);
}

std::vector<BoardByte> JobsFixture::TakeWritten() {
    const std::vector<int> sent = port.Sent();
    port.ForgetSent();
    std::vector<BoardByte> written;
    if (sent.empty())
        return written;
    EXPECT_EQ(sent.size() % 3, 2u) << "handshake and triples";
    EXPECT_EQ(sent[0], attention);
    EXPECT_EQ(sent[1], writeMode);
    for (std::size_t at = 2; at + 2 < sent.size(); at += 3)
        written.push_back({sent[at] * 256 + sent[at + 1], sent[at + 2]});
    return written;
}

std::vector<BoardByte> JobsFixture::Run(int address, const std::vector<int>& values) {
    std::vector<BoardByte> bytes;
    for (const int value : values)
        bytes.push_back({address++, value});
    return bytes;
}

void JobsFixture::SetTransfer(qint16 mode, qint16 board, qint16 from, qint16 to) {
    gXferMode = mode;
    gXferBoard = board;
    gXferFrom = from;
    gXferTo = to;
}
