#include "link/programs/ProgramFixture.h"

#include <numeric>
#include <QFile>

namespace {
constexpr int attention = 0xFF;
constexpr int acknowledge = 0x55;
} // namespace

QString ProgramTest::Write(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QByteArray ProgramTest::Read(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QString ProgramTest::WriteSet(const QString& base, char board, const QByteArray& rev,
                              const QByteArray& hex, const QByteArray& lcf) const {
    Write(base + QStringLiteral(".rev"), rev);
    Write(base + QStringLiteral(".hex"), hex);
    if (!lcf.isEmpty())
        Write(base + QStringLiteral(".lcf"), lcf);
    return Write(base + QStringLiteral(".hdn"), QByteArray(1, board) + "\r\n");
}

void WireTest::GoOnline() {
    port.Reply(acknowledge);
    link.OpenRSComm(port);
    ASSERT_TRUE(link.OnlineMode());
    port.ForgetSent();
}

void WireTest::Pair(int out, int in) {
    expected_.push_back(out);
    port.Reply(in);
}

void WireTest::Late(int out, int in, double seconds) {
    expected_.push_back(out);
    port.Reply(in, seconds);
}

void WireTest::Quiet(int out) {
    expected_.push_back(out);
    port.Silence();
}

void WireTest::Dead(int out) {
    Quiet(out);
    Quiet(attention);
    Quiet(attention);
}

void WireTest::Handshake(int modeByte) {
    Pair(attention, acknowledge);
    Pair(modeByte, acknowledge);
}

void WireTest::ReadByte(int address, int data) {
    Pair(address / 256, address / 256);
    Pair(address % 256, data);
}

void WireTest::WriteByte(int address, int data) {
    Pair(address / 256, address / 256);
    Pair(address % 256, address % 256);
    Pair(data, data);
}

void WireTest::ReadIdentBlock(const QByteArray& ident, int checksum, int revision) {
    Handshake(0x01);
    for (int offset = 0; offset < 8; ++offset)
        ReadByte(identAddress + offset,
                 offset < ident.size() ? static_cast<std::uint8_t>(ident[offset]) : 0);
    ReadByte(identAddress + 8, checksum);
    ReadByte(identAddress + 9, revision);
}

void WireTest::Record(const std::vector<int>& bytes, int reply) {
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i)
        Quiet(bytes[i]);
    if (reply < 0)
        Quiet(bytes.back());
    else
        Pair(bytes.back(), reply);
}

void WireTest::GoodRecord(const std::vector<int>& bytes) {
    Record(bytes, std::accumulate(bytes.begin(), bytes.end(), 0) % 256);
}

void WireTest::RequestDump() {
    Handshake(0x02);
    WriteByte(8181, 86);
    WriteByte(8176, 0);
    Pair(attention, acknowledge);
}

void WireTest::WriteIdentBlock(const QByteArray& eightBytes, int checksum, int revision) {
    Handshake(0x02);
    for (int offset = 0; offset < 8; ++offset)
        WriteByte(identAddress + offset, static_cast<std::uint8_t>(eightBytes[offset]));
    WriteByte(identAddress + 8, checksum);
    WriteByte(identAddress + 9, revision);
}

void WireTest::CheckWire() const {
    EXPECT_EQ(port.Sent(), expected_);
}
