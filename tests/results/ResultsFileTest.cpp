#include "results/ResultsFile.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <atomic>
#include <gtest/gtest.h>
#include <QFile>
#include <QTimer>
#include <thread>

namespace {
class ResultsFile : public testing::Test {
protected:
    QStringList Read(const QByteArray& content) {
        return ReadResultsFile(folder.Write("PUMP.err", content), clock);
    }
    double Passed() const { return clock.MonotonicSeconds() - start; }

    TestFolder folder;
    VirtualClock clock;
    const double start = clock.MonotonicSeconds();
};

void Append(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(bytes);
}
} // namespace

TEST_F(ResultsFile, IsReadInWholeLines) {
    EXPECT_EQ(Read("one, two\r\n\r\n  \"three\"  \r\nfour"),
              (QStringList{"one, two", "", "  \"three\"  ", "four"}));
    EXPECT_EQ(Passed(), 0.0);
}

TEST_F(ResultsFile, IsFoundWhateverTheCaseOfItsName) {
    folder.Write("PUMP.ERR", "one\r\n");
    EXPECT_EQ(ReadResultsFile(folder.Path("PUMP.err"), clock), QStringList{"one"});
}

TEST_F(ResultsFile, ThatIsEmptyIsWaitedForOneSecond) {
    EXPECT_TRUE(Read("").isEmpty());
    EXPECT_NEAR(Passed(), 1.0, 0.06);
}

TEST_F(ResultsFile, ThatFillsDuringTheWaitIsRead) {
    const QString path = folder.Write("PUMP.err", "");
    QTimer::singleShot(0, [&] { Append(path, "head\r\nhead\r\nbody\r\n"); });
    EXPECT_EQ(ReadResultsFile(path, clock), (QStringList{"head", "head", "body"}));
}

TEST_F(ResultsFile, ThatGoesDuringTheWaitRaisesAnError) {
    const QString path = folder.Write("PUMP.err", "");
    QTimer::singleShot(0, [&] { QFile::remove(path); });
    ExpectError(ErrorNumber::FileNotFound, [&] { ReadResultsFile(path, clock); });
}

// A line that is only half written is read as far as it goes; every other is whole, none is missed.
TEST_F(ResultsFile, ThatGrowsWhileItIsReadGivesWhatIsThereSoFar) {
    constexpr int lines = 20000;
    QStringList expected;
    for (int line = 0; line < lines; ++line)
        expected += QStringLiteral("line %1 of the errors").arg(line);
    const QString path = folder.Write("PUMP.err", "line 0 of the errors\r\n");
    std::atomic<bool> written = false;
    std::thread tool([&] {
        QFile file(path);
        if (file.open(QIODevice::Append | QIODevice::Unbuffered))
            for (int line = 1; line < lines; ++line)
                file.write(expected[line].toLatin1() + "\r\n");
        written = true;
    });
    bool last = false;
    while (!last) {
        last = written;
        const QStringList read = ReadResultsFile(path, clock);
        EXPECT_FALSE(read.isEmpty());
        EXPECT_EQ(read.mid(0, read.size() - 1), expected.mid(0, read.size() - 1));
        EXPECT_TRUE(expected.value(read.size() - 1).startsWith(read.last()));
        if (last || HasFailure()) {
            EXPECT_EQ(read, expected);
            last = true;
        }
    }
    tool.join();
}

TEST_F(ResultsFile, OfBinaryRubbishIsReadByteByByte) {
    QByteArray rubbish;
    for (int byte = 0; byte < 256; ++byte)
        rubbish += static_cast<char>(byte);
    const QStringList lines = Read(rubbish);
    ASSERT_EQ(lines.size(), 3); // parted at 10 and at 13
    EXPECT_EQ(lines[0].size(), 10);
    EXPECT_EQ(lines[2].size(), 242);
}

TEST_F(ResultsFile, OfOneEndlessLineIsOneLine) {
    EXPECT_EQ(Read(QByteArray(1000000, 'x')), QStringList{QString(1000000, 'x')});
}

TEST_F(ResultsFile, ThatIsTooLargeIsRefused) {
    ExpectError(ErrorNumber::OutOfMemory, [&] { Read(QByteArray(longestResults + 2, 'x')); });
    ExpectError(ErrorNumber::OutOfMemory, [&] { Read(QByteArray(longestResults + 2, '\n')); });
}

TEST_F(ResultsFile, CutInTheMiddleOfALineIsReadToItsEnd) {
    EXPECT_EQ(Read("head\r\nhead\r\nERROR 12 in li"),
              (QStringList{"head", "head", "ERROR 12 in li"}));
    EXPECT_EQ(Read("head\r"), QStringList{"head"});
}
