#include "help/SystemReport.h"

#include "base/VersionRecord.h"
#include <QLocale>
#include <QSysInfo>

namespace {
constexpr int captionWidth = 20; // characters

QString Line(const char* caption, const QString& value) {
    return QString::fromLatin1(caption).leftJustified(captionWidth) + value;
}

QString PortLine(const FoundPort& port) {
    const QString name =
        port.number ? QStringLiteral("COM%1").arg(*port.number) : QStringLiteral("(no number)");
    const QString line = QStringLiteral("  ") + name.leftJustified(captionWidth - 2) + port.device;
    return port.description.isEmpty() ? line : line + QStringLiteral(", ") + port.description;
}

QStringList PortLines(const std::vector<FoundPort>& ports) {
    QStringList lines{QString(), QStringLiteral("Serial ports found:")};
    for (const FoundPort& port : ports)
        lines.append(PortLine(port));
    if (ports.empty())
        lines.append(QStringLiteral("  none"));
    return lines;
}
} // namespace

SystemFacts GatherSystemFacts(const SerialPorts& ports) {
    SystemFacts facts;
    facts.systemName = QSysInfo::prettyProductName();
    facts.kernel = QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion();
    facts.processor = QSysInfo::currentCpuArchitecture();
    facts.qtRunning = QString::fromLatin1(qVersion());
    facts.qtBuilt = QStringLiteral(QT_VERSION_STR);
    facts.language = QLocale().name();
    facts.ports = ports.Found();
    return facts;
}

QString SystemReport(const SystemFacts& facts) {
    const VersionRecord& record = ProgramVersion();
    QStringList lines{
        Line("Program:", record.title + u' ' + record.Number()),
        Line("Revised:", facts.revised.toString(Qt::ISODate)),
        Line("Application folder:", facts.applicationFolder),
        Line("Port settings:", facts.portSettings),
        Line("System:", facts.systemName),
        Line("Kernel:", facts.kernel),
        Line("Processor:", facts.processor),
        Line("Qt:", facts.qtRunning + QStringLiteral(" (built with ") + facts.qtBuilt + u')'),
        Line("Window system:", facts.windowSystem),
        Line("Language:", facts.language),
    };
    for (const QString& screen : facts.screens)
        lines.append(Line("Screen:", screen));
    return (lines + PortLines(facts.ports)).join(u'\n');
}
