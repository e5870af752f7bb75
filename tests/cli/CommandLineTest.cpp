#include "cli/CommandLineTest.h"

#include <algorithm>
#include <QJsonDocument>

QString KeptConsole::Ask(const QString& prompt) {
    prompts += prompt;
    if (!answers.isEmpty())
        return answers.takeFirst();
    ADD_FAILURE() << "nobody expected to be asked " << prompt.toStdString();
    return QString();
}

void CommandLineTest::ConnectBoard(int model) {
    board = std::make_unique<haldenboard::SimulatedBoard>(model);
    line = std::make_unique<haldenboard::Line>(*board);
    port = std::make_unique<BoardPort>(clock, *line);
}

ExitCode CommandLineTest::Run(const QString& words) {
    QStringList all{QStringLiteral("quentor-cli")};
    for (const QString& word : words.split(u' ', Qt::SkipEmptyParts))
        all += word.startsWith(u'@') ? folder.Path(word.mid(1)) : word;
    NoBusyDisplay busy;
    const CommandPlatform platform{clock,
                                   busy,
                                   console,
                                   applicationFolder,
                                   ports,
                                   [this](const ApplicationFolder&) -> MSComm& { return *port; },
                                   [this] { ++starts; },
                                   [this] { return interrupted; }};
    const auto code = static_cast<ExitCode>(RunCommandLine(all, platform));
    EXPECT_FALSE(port->PortOpen());
    return code;
}

QJsonObject CommandLineTest::Json() const {
    return console.out.isEmpty() ? QJsonObject()
                                 : QJsonDocument::fromJson(console.out.last().toUtf8()).object();
}

void CommandLineTest::CutLineAtReply(int nth) {
    line->Faults().Order(
        {.kind = haldenboard::FaultKind::Lost, .nth = nth, .standing = true, .bytes = {}});
}

void CommandLineTest::LoseReply(int nth) {
    line->Faults().Order({.kind = haldenboard::FaultKind::Lost, .nth = nth, .bytes = {}});
}

int CommandLineTest::BytesSent() const {
    return static_cast<int>(
        std::count_if(line->Log().begin(), line->Log().end(),
                      [](const haldenboard::LoggedByte& byte) { return byte.toBoard; }));
}

void CommandLineTest::Poke(int address, const QByteArray& bytes) {
    for (const char byte : bytes)
        board->Poke(static_cast<std::uint16_t>(address++), static_cast<std::uint8_t>(byte));
}

QByteArray CommandLineTest::Memory(int address, int length) const {
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes.append(static_cast<char>(board->Peek(static_cast<std::uint16_t>(address + i))));
    return bytes;
}
