#pragma once

#include "app/Application.h"
#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Drives.h"
#include "base/port/SerialMSComm.h"
#include "base/port/SystemSerialPorts.h"
#include "base/ProcessStart.h"
#include "bench/BenchDialogs.h"
#include "bench/CountingPort.h"
#include "reports/views/PrinterSurface.h"
#include <QTemporaryDir>

class Grid;
class frmStatusTable;

namespace bench {

/// The whole program with its main window on the screen, in an application folder of its own.
class BenchProgram {
public:
    /// Starts it, offline.
    BenchProgram();
    ~BenchProgram();

    /// Goes online to the device at `baud`, 9600 or 19200. Raises std::runtime_error when that
    /// fails.
    void GoOnline(const QString& device, int baud);
    /// Raises std::runtime_error when the link has failed since.
    void CheckOnline();

    /// The status table.
    frmStatusTable& Table();
    Grid& TableGrid();
    /// Opens a table of the byte variables "B" + `first` to `last`, all of its rows in sight.
    void OpenByteTable(int first, int last);

    /// Lets the program run for a time.
    void Run(double seconds);

    BenchDialogs dialogs;
    SystemClock clock;
    NoBusyDisplay busy;
    SystemDrives drives;
    const SystemSerialPorts ports{folder};
    SystemProcessStart tools;
    SystemPrinter printer;
    QTemporaryDir directory;
    ApplicationFolder folder{directory.path()};
    SerialMSComm serial{clock, folder};
    CountingPort port{serial};
    Application application;
};

} // namespace bench
