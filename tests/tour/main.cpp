#include "app/Application.h"
#include "base/ApplicationFolder.h"
#include "base/Drives.h"
#include "base/port/SerialMSComm.h"
#include "base/port/SystemSerialPorts.h"
#include "base/ProcessStart.h"
#include "controls/LegibleStyle.h"
#include "controls/PaintedBusyDisplay.h"
#include "controls/QtDialogs.h"
#include "reports/views/PrinterSurface.h"
#include "tour/BoardProcess.h"
#include "tour/DataTransferTour.h"
#include "tour/HelpTour.h"
#include "tour/LimitSwitchTour.h"
#include "tour/MainJobTour.h"
#include "tour/ProgramSetTour.h"
#include "tour/ResultsTour.h"
#include "tour/StatusTableTour.h"
#include "tour/TargetBoardTour.h"
#include "tour/TourGuide.h"
#include "tour/TourScreen.h"
#include "tour/TourSetting.h"
#include "tour/TrendTour.h"
#include <cstdio>
#include <QApplication>
#include <QPalette>

namespace {
// The colours of a usual dark scheme: entries darker than the window, all that is off in grey.
QPalette DarkPalette() {
    const QColor window(0x2b, 0x2d, 0x31);
    const QColor off(0x82, 0x86, 0x8c);
    QPalette palette(QColor(0x35, 0x38, 0x3d), window);
    palette.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2c));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Light, QColor(0x4a, 0x4e, 0x55));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4f, 0x53, 0x5a));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, off);
    return palette;
}

// On a screen larger than the program's usual size the main window fills it.
void AddFullScreen(TourGuide& guide, frmMDIMain& window) {
    guide.Stop(
        QStringLiteral("the main window fills the screen"),
        [&window] { return window.isVisible(); }, [&window] { window.showMaximized(); });
}

int RunTour(const QString& output) {
    const TourSetting setting(output + QLatin1String("/app"));
    BoardProcess board(QCoreApplication::applicationDirPath() + QLatin1String("/halden-board"),
                       setting.PortLink());
    if (!setting.IsReady() || !board.IsRunning()) {
        std::fputs("The tour FAILED: its folder or the simulated board is not there.\n", stdout);
        return 1;
    }
    const ApplicationFolder folder(setting.ApplicationFolder());
    SystemClock clock;
    QtDialogs dialogs;
    PaintedBusyDisplay busy;
    SystemDrives drives;
    SerialMSComm port(clock, folder);
    const SystemSerialPorts ports(folder);
    SystemProcessStart tools;
    SystemPrinter printer;
    Application application({clock, dialogs, busy, port, folder, drives, ports, tools, printer,
                             [] { QApplication::exit(); }});
    TourGuide guide(application.MainWindow(), output);
    AddFullScreen(guide, application.MainWindow());
    AddSplash(guide);
    AddMainJob(guide, application.MainWindow(), board);
    AddDataTransfers(guide, application.MainWindow(), board, setting);
    AddStatusTable(guide, application.MainWindow(), board, setting);
    AddTrending(guide, application.MainWindow(), board, setting);
    AddTargetBoard(guide, application.MainWindow(), board);
    AddProgramSets(guide, application.MainWindow(), board, setting);
    AddResults(guide, application.MainWindow(), setting);
    AddLimitSwitch(guide, application.MainWindow(), board);
    AddHelp(guide, application.MainWindow());
    guide.Start();
    application.Start();
    return QApplication::exec();
}
} // namespace

/// quentor-tour FOLDER [--dark] [--screen=WIDTHxHEIGHT]: pictures and transcript go to FOLDER.
int main(int argc, char** argv) {
    const QStringList arguments(argv, argv + argc);
    if (argc < 2 || !ChooseTourScreen(arguments.mid(2), arguments.at(1))) {
        std::fputs("quentor-tour FOLDER [--dark] [--screen=WIDTHxHEIGHT]\n", stderr);
        return 2;
    }
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // the tour's hand knows Qt's own
    QApplication qt(argc, argv);
    QApplication::setStyle(new LegibleStyle(QStringLiteral("Fusion")));
    if (arguments.contains(QLatin1String("--dark")))
        QApplication::setPalette(DarkPalette());
    return RunTour(arguments.at(1));
}
