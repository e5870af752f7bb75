#include "help/SystemReport.h"

#include "base/VersionRecord.h"
#include "support/ScriptedSerialPorts.h"
#include <gtest/gtest.h>
#include <QSysInfo>

namespace {
SystemFacts Facts() {
    SystemFacts facts;
    facts.revised = QDate(2026, 2, 3);
    facts.applicationFolder = QStringLiteral("/opt/quentor");
    facts.portSettings = QStringLiteral("COM33, 19200 baud");
    facts.systemName = QStringLiteral("Some System 12");
    facts.kernel = QStringLiteral("linux 6.1");
    facts.processor = QStringLiteral("x86_64");
    facts.qtRunning = QStringLiteral("6.4.2");
    facts.qtBuilt = QStringLiteral("6.4.1");
    facts.windowSystem = QStringLiteral("xcb, style fusion");
    facts.language = QStringLiteral("en_GB");
    facts.screens = {QStringLiteral("1280 x 800 at 100 per cent")};
    return facts;
}
} // namespace

TEST(SystemReport, NamesProgramSystemLibrariesScreensAndPorts) {
    SystemFacts facts = Facts();
    facts.ports = {{33, QStringLiteral("/dev/ttyUSB0"), QStringLiteral("USB adapter")},
                   {std::nullopt, QStringLiteral("/dev/ttyX"), QString()}};
    const QString number = ProgramVersion().Number();
    EXPECT_EQ(SystemReport(facts).toStdString(),
              "Program:            Quentor " + number.toStdString() +
                  "\n"
                  "Revised:            2026-02-03\n"
                  "Application folder: /opt/quentor\n"
                  "Port settings:      COM33, 19200 baud\n"
                  "System:             Some System 12\n"
                  "Kernel:             linux 6.1\n"
                  "Processor:          x86_64\n"
                  "Qt:                 6.4.2 (built with 6.4.1)\n"
                  "Window system:      xcb, style fusion\n"
                  "Language:           en_GB\n"
                  "Screen:             1280 x 800 at 100 per cent\n"
                  "\n"
                  "Serial ports found:\n"
                  "  COM33             /dev/ttyUSB0, USB adapter\n"
                  "  (no number)       /dev/ttyX");
}

TEST(SystemReport, SaysThatThereIsNoPort) {
    EXPECT_TRUE(SystemReport(Facts()).endsWith(QLatin1String("Serial ports found:\n  none")));
}

TEST(SystemReport, TheFactsAreThoseOfThisSystem) {
    ScriptedSerialPorts ports;
    ports.found = {{1, QStringLiteral("/dev/ttyS0"), QString()}};
    const SystemFacts facts = GatherSystemFacts(ports);
    EXPECT_EQ(facts.systemName, QSysInfo::prettyProductName());
    EXPECT_EQ(facts.qtRunning.toStdString(), qVersion());
    EXPECT_EQ(facts.qtBuilt.toStdString(), QT_VERSION_STR);
    ASSERT_EQ(facts.ports.size(), 1u);
    EXPECT_EQ(facts.ports[0].device.toStdString(), "/dev/ttyS0");
}
