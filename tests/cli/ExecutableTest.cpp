#include "support/TestFolder.h"
#include "tour/BoardProcess.h"
#include <gtest/gtest.h>
#include <QJsonDocument>
#include <QJsonObject>

// The real program against the simulated board, each in a process of its own, over a
// pseudo-terminal.

namespace {
constexpr int patience = 60000; // milliseconds; only a test that fails ever waits so long

struct Ran {
    int exitCode = -1;
    QJsonObject object;
    QString messages;
};

class CliExecutable : public testing::Test {
protected:
    CliExecutable() : board_(QStringLiteral(HALDEN_BOARD_PATH), terminal) {
        folder.Write(QStringLiteral("PUMP1.hdn"), "2\r\n");
        folder.Write(QStringLiteral("PUMP1.rev"), "PUMP1:301\r\n");
        folder.Write(QStringLiteral("PUMP1.HEX"),
                     ":10500000000102030405060708090A0B0C0D0E0F\r\n:00000001FF\r\n");
    }

    // Without a terminal at its standard input.
    Ran Run(const QStringList& words) const {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.Path(QStringLiteral("data")));
        program.setProcessEnvironment(environment);
        program.setStandardInputFile(QProcess::nullDevice());
        program.start(QStringLiteral(QUENTOR_CLI_PATH),
                      words + QStringList{QStringLiteral("--json")});
        EXPECT_TRUE(program.waitForFinished(patience));
        return {program.exitCode(),
                QJsonDocument::fromJson(program.readAllStandardOutput()).object(),
                QString::fromLocal8Bit(program.readAllStandardError())};
    }
    Ran RunOnBoard(const QStringList& words) const {
        return Run(words + QStringList{QStringLiteral("--port"), terminal});
    }

    TestFolder folder;
    const QString terminal = folder.Path(QStringLiteral("board"));
    const QString set = folder.Path(QStringLiteral("PUMP1.hdn"));

private:
    BoardProcess board_;
};
} // namespace

TEST_F(CliExecutable, DumpsVerifiesAndIdentifies) {
    const Ran refused = RunOnBoard({QStringLiteral("dump"), set});
    EXPECT_EQ(refused.exitCode, 4);
    EXPECT_TRUE(refused.messages.contains(QStringLiteral("give --yes")));

    const Ran dump = RunOnBoard({QStringLiteral("dump"), set, QStringLiteral("--yes")});
    EXPECT_EQ(dump.exitCode, 0) << dump.messages.toStdString();
    EXPECT_EQ(dump.object[QStringLiteral("outcome")].toString(), QStringLiteral("done"));

    const Ran verify = RunOnBoard({QStringLiteral("verify"), set});
    EXPECT_EQ(verify.exitCode, 0) << verify.messages.toStdString();
    EXPECT_EQ(
        verify.object[QStringLiteral("result")].toObject()[QStringLiteral("compared")].toInt(), 16);

    EXPECT_EQ(RunOnBoard({QStringLiteral("ident"), set}).exitCode, 0);
}

TEST_F(CliExecutable, AVariableIsWrittenAndReadBack) {
    const QStringList model{QStringLiteral("--model"), QStringLiteral("K2012")};
    EXPECT_EQ(RunOnBoard(QStringList{QStringLiteral("write"), QStringLiteral("W5000=4711")} + model)
                  .exitCode,
              0);
    const Ran read =
        RunOnBoard(QStringList{QStringLiteral("read"), QStringLiteral("W5000")} + model);
    EXPECT_EQ(read.exitCode, 0);
    EXPECT_TRUE(QJsonDocument(read.object).toJson().contains("4711"));
}

TEST_F(CliExecutable, APortThatIsNotThereIsNoCommunication) {
    const Ran ran = Run({QStringLiteral("faults"), QStringLiteral("--port"),
                         folder.Path(QStringLiteral("nothing"))});
    EXPECT_EQ(ran.exitCode, 5);
    EXPECT_FALSE(ran.object[QStringLiteral("reason")].toString().isEmpty());
}
