#include "base/Clock.h"
#include "base/OwnFolder.h"
#include "base/port/SerialMSComm.h"
#include "base/port/SystemSerialPorts.h"
#include "base/ProcessStart.h"
#include "base/VersionRecord.h"
#include "cli/Console.h"
#include "cli/RunCommandLine.h"
#include <csignal>
#include <QCoreApplication>

namespace {
volatile std::sig_atomic_t interruptions = 0;

// The work ends at the next place where nothing is under way, so that no board is left in a mode.
extern "C" void NoteInterruption(int) {
    interruptions = 1;
}

// The program with windows stands beside this one.
void StartQuentor() {
    constexpr int normalWindow = 1;
    const QString program = QCoreApplication::applicationDirPath() + QLatin1String("/quentor");
    SystemProcessStart().Shell(CommandWord(program), normalWindow);
}
} // namespace

int main(int argc, char** argv) {
    const QCoreApplication qt(argc, argv);
    QCoreApplication::setApplicationName(ProgramVersion().title);
    QCoreApplication::setApplicationVersion(ProgramVersion().Number());
    std::signal(SIGINT, NoteInterruption);
    std::signal(SIGTERM, NoteInterruption);

    const ApplicationFolder folder = FindOwnFolder();
    SystemClock clock;
    NoBusyDisplay busy;
    StandardConsole console;
    const SystemSerialPorts ports(folder);
    std::unique_ptr<SerialMSComm> port;
    const CommandPlatform platform{clock,
                                   busy,
                                   console,
                                   folder,
                                   ports,
                                   [&](const ApplicationFolder& links) -> MSComm& {
                                       port = std::make_unique<SerialMSComm>(clock, links);
                                       return *port;
                                   },
                                   StartQuentor,
                                   [] { return interruptions != 0; }};
    return RunCommandLine(QCoreApplication::arguments(), platform);
}
