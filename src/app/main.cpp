#include "app/Application.h"
#include "base/Drives.h"
#include "base/OwnFolder.h"
#include "base/port/SerialMSComm.h"
#include "base/port/SystemSerialPorts.h"
#include "base/ProcessStart.h"
#include "base/VersionRecord.h"
#include "controls/LegibleStyle.h"
#include "controls/PaintedBusyDisplay.h"
#include "controls/QtDialogs.h"
#include "reports/views/PrinterSurface.h"
#include <QApplication>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setStyle(new LegibleStyle);
    QCoreApplication::setApplicationName(ProgramVersion().title);
    QCoreApplication::setApplicationVersion(ProgramVersion().Number());
    QGuiApplication::setDesktopFileName(QStringLiteral("halden.suite.quentor"));

    const ApplicationFolder folder = FindOwnFolder();
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
    application.Start();
    return QApplication::exec();
}
