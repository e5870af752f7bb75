#include "bench/BenchProgram.h"

#include "bench/BenchFiles.h"
#include "controls/grid/Grid.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableFile.h"
#include "statustable/views/frmStatusTable.h"
#include <QEventLoop>
#include <QTimer>
#include <stdexcept>

namespace bench {

namespace {
constexpr QSize windowSize(1280, 1000);
constexpr qint16 board = 50;
constexpr double settleTime = 0.3; // seconds
} // namespace

BenchProgram::BenchProgram()
    : application({clock, dialogs, busy, port, folder, drives, ports, tools, printer, [] {}}) {
    gHdnFile.clear();
    application.MainWindow().Views().frmSplash = nullptr; // waits for a user
    application.Start();
    application.MainWindow().resize(windowSize);
    Run(settleTime);
}

BenchProgram::~BenchProgram() = default;

void BenchProgram::GoOnline(const QString& device, int baud) {
    WritePortSettings(directory.path(), device, baud);
    application.MainWindow().Mode().GoOnline();
    CheckOnline();
}

void BenchProgram::CheckOnline() {
    if (!application.Link().OnlineMode() || application.Link().CommError())
        throw std::runtime_error("the link has failed");
}

frmStatusTable& BenchProgram::Table() {
    auto* view = application.MainWindow().findChild<frmStatusTable*>();
    if (!view)
        throw std::runtime_error("the program has no status table");
    return *view;
}

Grid& BenchProgram::TableGrid() {
    return Table().StatusGrid();
}

void BenchProgram::OpenByteTable(int first, int last) {
    QStringList addresses;
    for (int address = first; address <= last; ++address)
        addresses += QStringLiteral("B%1").arg(address);
    const QString path = directory.filePath(QStringLiteral("Bytes.tbl"));
    WriteTableFile(path, board, addresses);
    dialogs.ExpectOpen(path);
    Table().parentWidget()->showMaximized();
    Table().OpenStatusTable();
    Run(settleTime);
    const int lastRow = firstDataRow + last - first;
    if (TableGrid().TextMatrix(lastRow, TableColumn::Address) != addresses.last() ||
        !TableGrid().RowIsVisible(lastRow))
        throw std::runtime_error("the rows of the table are not all in sight");
}

void BenchProgram::Run(double seconds) {
    QEventLoop events;
    QTimer::singleShot(static_cast<int>(seconds * 1000), Qt::PreciseTimer, &events,
                       &QEventLoop::quit);
    events.exec();
}

} // namespace bench
