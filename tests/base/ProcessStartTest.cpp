#include "base/ProcessStart.h"

#include "support/ExpectError.h"
#include "support/TestFolder.h"
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <QFile>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// What the first writer of a pipe writes; empty if none comes within ten seconds.
QByteArray FirstWordFrom(int pipe) {
    pollfd wanted{pipe, POLLIN, 0};
    char bytes[64];
    if (poll(&wanted, 1, 10000) != 1)
        return QByteArray();
    const ssize_t count = read(pipe, bytes, sizeof bytes);
    return count > 0 ? QByteArray(bytes, count) : QByteArray();
}
} // namespace

TEST(ProcessStart, AProgramThatCannotBeStartedIsError53) {
    SystemProcessStart start;
    ExpectError(53, [&] { start.Shell(QStringLiteral("/no/such/program 1"), 1); });
}

TEST(ProcessStart, AnEmptyCommandIsError5) {
    SystemProcessStart start;
    ExpectError(5, [&] { start.Shell(QString(), 1); });
    ExpectError(5, [&] { start.Shell(QStringLiteral("  "), 1); });
}

TEST(ProcessStart, StartsAProgramFoundWhateverItsCaseWithItsArguments) {
    const TestFolder folder;
    const QString script = folder.Write(QStringLiteral("Tool dir/Tool.EXE"),
                                        "#!/bin/sh\nprintf '%s' \"$1\" > \"$2\"\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString pipe = folder.Path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    const int reader = open(pipe.toLocal8Bit().constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    SystemProcessStart start;
    start.Shell(QStringLiteral("\"%1\" \"a b\" \"%2\"")
                    .arg(folder.Path(QStringLiteral("tool DIR/tool.exe")), pipe),
                1);
    EXPECT_EQ(FirstWordFrom(reader), "a b");
    close(reader);
}
