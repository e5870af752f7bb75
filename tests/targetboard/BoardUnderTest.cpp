#include "BoardUnderTest.h"

#include "base/Dialogs.h"
#include <gtest/gtest.h>

namespace {
constexpr int attention = 0xFF;
constexpr int readMode = 1;
constexpr int writeMode = 2;

QString NoReply() {
    return QStringLiteral("Cannot Communicate with Target Board.\rVerify RS-232 Cable is Connected "
                          "Between\rCOMM Port and PROG Port.");
}

// Takes the bytes to the board apart: attention, mode byte, then pairs (read) or triples (write).
class HeardBytes {
public:
    void Hear(int byte) {
        if (unit_.empty() && byte == attention) {
            mode_ = attention;
        } else if (mode_ == attention) {
            mode_ = byte;
        } else if (mode_ == readMode || mode_ == writeMode) {
            unit_.push_back(byte);
            Collect();
        }
    }
    std::vector<WrittenByte> read, written;

private:
    void Collect() {
        const std::size_t length = mode_ == readMode ? 2 : 3;
        if (unit_.size() < length)
            return;
        const int address = unit_[0] * 256 + unit_[1];
        if (mode_ == readMode)
            read.push_back({address, 0});
        else
            written.push_back({address, unit_[2]});
        unit_.clear();
    }
    int mode_ = 0;
    std::vector<int> unit_;
};
} // namespace

void PrintTo(const WrittenByte& byte, std::ostream* out) {
    *out << 'B' << byte.address << '=' << byte.value;
}

BoardUnderTest::BoardUnderTest(int model)
    : folder(files.MakeFolder("app")),
      hdnFile(files.Write("PUMP.hdn", QByteArray(1, static_cast<char>(model)) + "\r\n")),
      board(model), line(board), port(clock, line), link(dialogs, clock, busy, folder),
      mode(link, port, display) {
    line.SetBaud(0);
    clock.SetWallClock(QDateTime(QDate(2017, 3, 9), QTime(8, 5, 7)));
}

std::vector<WrittenByte> BoardUnderTest::Take(bool writes) {
    HeardBytes heard;
    for (const haldenboard::LoggedByte& byte : line.Log())
        if (byte.toBoard)
            heard.Hear(byte.value);
    return writes ? heard.written : heard.read;
}

// The whole log is taken apart each time, since a mode may have been entered long ago.
std::vector<WrittenByte> BoardUnderTest::TakeWritten() {
    std::vector<WrittenByte> all = Take(true);
    const std::vector<WrittenByte> fresh(all.begin() + static_cast<std::ptrdiff_t>(writtenSeen_),
                                         all.end());
    writtenSeen_ = all.size();
    return fresh;
}

std::vector<int> BoardUnderTest::TakeRead() {
    const std::vector<WrittenByte> all = Take(false);
    std::vector<int> fresh;
    for (std::size_t i = readSeen_; i < all.size(); ++i)
        fresh.push_back(all[i].address);
    readSeen_ = all.size();
    return fresh;
}

void BoardUnderTest::CutLine() {
    line.Faults().SetSilence(true);
    dialogs.ExpectBox(NoReply(), MsgStyle::CriticalRetryCancel,
                      QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
}

void BoardUnderTest::MendLine() {
    line.Faults().SetSilence(false);
}

void BoardUnderTest::WriteSupport(const QString& name, const QByteArray& content) {
    files.Write(QStringLiteral("app/support/") + name, content);
}

void BoardUnderTest::Poke(int address, int value) {
    board.Poke(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(value));
}
