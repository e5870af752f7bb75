#include "cli/Arguments.h"
#include "base/TextFile.h"
#include "cli/CommandLineTest.h"
#include "cli/Commands.h"
#include "cli/PortChoice.h"
#include "link/PortSettings.h"
#include <QFileInfo>

namespace {
class ArgumentsTest : public CommandLineTest {};

class WrongArguments : public CommandLineTest, public testing::WithParamInterface<const char*> {};

ParsedArguments Parsed(const QString& words) {
    return ParseArguments((QStringLiteral("quentor-cli ") + words).split(u' '));
}
} // namespace

TEST_P(WrongArguments, EndAsUsageAndSendNothing) {
    folder.Write(QStringLiteral("A.hdn"), "2\r\n");
    EXPECT_EQ(Run(QString::fromLatin1(GetParam())), ExitCode::Usage);
    EXPECT_TRUE(console.out.isEmpty());
    EXPECT_TRUE(Messages().startsWith(QStringLiteral("quentor-cli: ")));
    EXPECT_EQ(BytesSent(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, WrongArguments,
    testing::Values("", "fly", "read", "read B100", "read --model K9999 B100",
                    "read --model K2012 --set @A.hdn B100", "read --model K2012 Q7",
                    "read --model K2012 B100.8", "read --model K2012 B100x",
                    "read --model K2012 W101", "read --model K2014 X99",
                    "read --model K2012 B99999", "read --model 55 FF00H",
                    "read --model K2012 --port 0 B100", "read --model K2012 --port 100 B100",
                    "read --model K2012 --baud 300 B100", "read --nonsense --model K2012 B100",
                    "write --model K2012 B100", "write --model K2012 B100=12.5",
                    "write --model K2012 B100=-1", "write --model K2012 B100=256",
                    "write --model K2012 W100=65536", "write --model K2012 B100.1=2",
                    "write --model K2012 B100=1 B101=x", "dump --yes", "dump --yes a b",
                    "dump --yes A.hex", "ports 1", "open a b", "open A.hex", "faults 1",
                    "data-download --yes --from x @A.hdn", "data-download --yes --from 31 @A.hdn",
                    "data-upload --yes --from 200 --to 100 @A.hdn"));

TEST_F(ArgumentsTest, HelpNamesEveryCommandAndEveryExitCode) {
    EXPECT_EQ(Run(QStringLiteral("--help")), ExitCode::Done);
    const QString text = console.out.join(u'\n');
    for (const Command& command : Commands())
        EXPECT_TRUE(text.contains(QStringLiteral("  %1 ").arg(QLatin1String(command.name))));
    for (int code = 0; code <= 8; ++code) {
        const QString word = ExitWord(static_cast<ExitCode>(code));
        EXPECT_FALSE(word.isEmpty());
        EXPECT_TRUE(text.contains(QStringLiteral("  %1 %2 ").arg(code).arg(word)));
    }
}

TEST_F(ArgumentsTest, VersionNamesTheProgram) {
    EXPECT_EQ(Run(QStringLiteral("--version")), ExitCode::Done);
    EXPECT_TRUE(console.out.last().startsWith(QStringLiteral("Quentor ")));
}

TEST_F(ArgumentsTest, WrongArgumentsAreAnObjectTooWhenAskedFor) {
    EXPECT_EQ(Run(QStringLiteral("read --json")), ExitCode::Usage);
    EXPECT_EQ(Json()[QStringLiteral("outcome")].toString(), QStringLiteral("usage"));
    EXPECT_EQ(Run(QStringLiteral("--json --nonsense")), ExitCode::Usage);
    EXPECT_EQ(Json()[QStringLiteral("exitCode")].toInt(), 2);
}

TEST_F(ArgumentsTest, PortAndBaudLeaveTheSettingsFileAsItIs) {
    const QString file = applicationFolder.Path(QStringLiteral("Support/RSPort.cfg"));
    SavePortSettings(file, {.port = 7, .baud = 19200});
    const ParsedArguments parsed = Parsed(QStringLiteral("faults --port 12 --baud 9600"));
    const PortChoice choice(parsed.arguments, applicationFolder);
    const PortSettings chosen =
        LoadPortSettings(choice.SettingsFolder().Path(QStringLiteral("Support/RSPort.cfg")));
    EXPECT_EQ(chosen.port, 12);
    EXPECT_EQ(chosen.baud, 9600);
    EXPECT_EQ(LoadPortSettings(file).port, 7);
}

TEST_F(ArgumentsTest, WithoutPortAndBaudTheSettingsFileCounts) {
    const ParsedArguments parsed = Parsed(QStringLiteral("faults"));
    const PortChoice choice(parsed.arguments, applicationFolder);
    EXPECT_EQ(choice.SettingsFolder().Root(), applicationFolder.Root());
    EXPECT_EQ(choice.LinksFolder().Root(), applicationFolder.Root());
}

TEST_F(ArgumentsTest, BaudAloneKeepsThePortOfTheSettingsFile) {
    SavePortSettings(applicationFolder.Path(QStringLiteral("Support/RSPort.cfg")),
                     {.port = 7, .baud = 9600});
    const ParsedArguments parsed = Parsed(QStringLiteral("faults --baud 19200"));
    const PortChoice choice(parsed.arguments, applicationFolder);
    const PortSettings chosen =
        LoadPortSettings(choice.SettingsFolder().Path(QStringLiteral("Support/RSPort.cfg")));
    EXPECT_EQ(chosen.port, 7);
    EXPECT_EQ(chosen.baud, 19200);
}

TEST_F(ArgumentsTest, ADeviceWithoutANumberGetsALinkOfItsOwn) {
    const QString device = folder.Write(QStringLiteral("tty-of-the-line"), "");
    const ParsedArguments parsed = Parsed(QStringLiteral("faults --port ") + device);
    const PortChoice choice(parsed.arguments, applicationFolder);
    const QFileInfo link(choice.LinksFolder().Path(QStringLiteral("Support/ports/COM99")));
    EXPECT_EQ(link.symLinkTarget(), device);
    EXPECT_EQ(
        LoadPortSettings(choice.SettingsFolder().Path(QStringLiteral("Support/RSPort.cfg"))).port,
        99);
}

TEST_F(ArgumentsTest, TheRunUsesTheChosenPort) {
    EXPECT_EQ(Run(QStringLiteral("faults --port 12 --baud 19200")), ExitCode::Done);
    EXPECT_EQ(port->CommPort(), 12);
    EXPECT_EQ(port->Settings(), QStringLiteral("19200,n,8,1"));
}
