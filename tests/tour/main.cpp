#include "app/Application.h"
#include "base/ApplicationFolder.h"
#include "base/Drives.h"
#include "base/port/SerialMSComm.h"
#include "base/port/SystemSerialPorts.h"
#include "base/ProcessStart.h"
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
#include "tour/TourSetting.h"
#include "tour/TrendTour.h"
#include <cstdio>
#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace {
QPalette DarkPalette() {
    QPalette palette(QColor(0x2d, 0x2f, 0x33), QColor(0x24, 0x26, 0x2a));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
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

namespace {
// Without a display the tour has a screen of 1280 x 800 pixels, as small as the program is used on,
// and of four times as many where everything is drawn at 200 per cent.
void ChooseScreen() {
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return;
    const QByteArray screen = qgetenv("QT_SCALE_FACTOR") == "2" ? "screen-200" : "screen";
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" QUENTOR_SOURCE_FOLDER "/tests/tour/" + screen + ".json");
}
} // namespace

/// quentor-tour FOLDER [--dark]: pictures and transcript go to FOLDER.
int main(int argc, char** argv) {
    ChooseScreen();
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // the tour's hand knows Qt's own
    QApplication qt(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    if (arguments.contains(QLatin1String("--dark")))
        QApplication::setPalette(DarkPalette());
    if (arguments.size() < 2) {
        std::fputs("quentor-tour FOLDER [--dark]\n", stderr);
        return 2;
    }
    return RunTour(arguments.at(1));
}
