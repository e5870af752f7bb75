#include "jobs/JobsFixture.h"

#include "base/Dialogs.h"
#include <QFile>

namespace {
constexpr int attention = 0xFF;
constexpr int acknowledge = 0x55;
constexpr int writeMode = 0x02;
} // namespace

JobsFixture::JobsFixture() {
    port.Reply(acknowledge);
    link.OpenRSComm(port);
    EXPECT_TRUE(link.OnlineMode());
    port.ForgetSent();
    gXferFile = PathOf(QStringLiteral("Press.ldt"));
}

JobsFixture::~JobsFixture() {
    gXferMode = gXferBoard = gXferFrom = gXferTo = gWaitJob = 0;
    gXferFile.clear();
    gHdnFile.clear();
}

void JobsFixture::WriteFile(const QString& path, const QByteArray& bytes) const {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray JobsFixture::FileBytes(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void JobsFixture::BoardTakes(const std::vector<BoardByte>& bytes) {
    port.Replies({acknowledge, acknowledge});
    for (const BoardByte& byte : bytes)
        port.Replies({byte.address / 256, byte.address % 256, byte.value});
}

void JobsFixture::BoardGives(const std::vector<BoardByte>& bytes) {
    port.Replies({acknowledge, acknowledge});
    for (const BoardByte& byte : bytes)
        port.Replies({byte.address / 256, byte.value});
}

void JobsFixture::LineIsCut() {
    for (int i = 0; i < 3; ++i)
        port.Silence();
    dialogs.ExpectBoxTitled(QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
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
