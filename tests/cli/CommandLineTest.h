#pragma once

#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "cli/Console.h"
#include "cli/ExitCode.h"
#include "cli/RunCommandLine.h"
#include "support/BoardPort.h"
#include "support/PrintText.h"
#include "support/ScriptedSerialPorts.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <memory>
#include <QJsonObject>

/// A console that keeps what it was told. Nobody sits before it unless a test says so.
class KeptConsole final : public Console {
public:
    void Out(const QString& text) override { out += text; }
    void Err(const QString& text) override { err += text; }
    void ShowProgress(const QString& line) override { progress += line; }
    bool MayAsk() const override { return mayAsk; }
    QString Ask(const QString& prompt) override;

    QStringList out, err, progress, prompts;
    QStringList answers; ///< to the prompts to come, in order
    bool mayAsk = false;
};

/// The program with a simulated board at its line, in virtual time, and a folder of its own.
class CommandLineTest : public testing::Test {
protected:
    static constexpr int k2012 = 50;
    static constexpr int t7110 = 65;
    static constexpr int r6500PLC = 68;
    static constexpr int r6500PLS = 69;

    explicit CommandLineTest(int model = k2012) { ConnectBoard(model); }

    /// A new board in its delivery state.
    void ConnectBoard(int model);
    /// Runs the program with these words; "@NAME" stands for a path in the folder.
    ExitCode Run(const QString& words);
    /// The object that the last run gave with --json.
    QJsonObject Json() const;
    QJsonObject Result() const { return Json()[QStringLiteral("result")].toObject(); }
    /// All that went to standard error.
    QString Messages() const { return console.err.join(u'\n'); }

    /// From the nth reply from now on nothing comes back.
    void CutLineAtReply(int nth);
    /// The nth reply from now on does not come.
    void LoseReply(int nth);
    /// Bytes that have gone to the board.
    int BytesSent() const;
    void Poke(int address, const QByteArray& bytes);
    QByteArray Memory(int address, int length) const;

    TestFolder folder;
    ApplicationFolder applicationFolder{folder.MakeFolder(QStringLiteral("application"))};
    VirtualClock clock;
    KeptConsole console;
    ScriptedSerialPorts ports;
    int starts = 0; ///< of the program with windows
    bool interrupted = false;
    std::unique_ptr<haldenboard::SimulatedBoard> board;
    std::unique_ptr<haldenboard::Line> line;
    std::unique_ptr<BoardPort> port;
};
