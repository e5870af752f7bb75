#include "bench/TableFileRows.h"

#include "bench/BenchFiles.h"
#include "bench/BenchProgram.h"
#include "bench/Median.h"
#include "bench/PaintWatch.h"
#include "controls/grid/Grid.h"
#include "jobs/DataFile.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableFile.h"
#include "statustable/views/frmStatusTable.h"
#include <ctime>
#include <QCheckBox>
#include <stdexcept>

namespace bench {

namespace {
constexpr double longestOpening = 500; // milliseconds
constexpr int manyLines = 32000;
constexpr int openings = 7;          // of each size
constexpr double goalOfGrowth = 0.8; // twice the lines may take two and a half times as long
constexpr qint16 board = 50;

constexpr double mostProcessorTime = 5; // milliseconds a second
constexpr double watchTime = 3;         // seconds
constexpr double settleTime = 1.5;      // seconds
constexpr int dataBytes = 8176;

QString WriteTable(const BenchProgram& program, int lines) {
    QStringList addresses;
    for (int line = 0; line < lines; ++line)
        addresses += QStringLiteral("B%1").arg(lines % 1000 + line % 7000);
    const QString path = program.directory.filePath(QStringLiteral("Lines%1.tbl").arg(lines));
    WriteTableFile(path, board, addresses);
    return path;
}

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

struct Opening {
    double milliseconds;
    double processorMilliseconds;
};

Opening Open(BenchProgram& program, const QString& path, int lines) {
    program.dialogs.ExpectOpen(path);
    Grid& grid = program.TableGrid();
    const int lastRow = firstDataRow + lines - 1;
    const auto opened = [&] {
        return grid.Rows() == lastRow + 2 &&
               !grid.TextMatrix(lastRow, TableColumn::Address).isEmpty();
    };
    const double before = ProcessorSeconds();
    const double seconds = SecondsUntilShown(
        *grid.viewport(), [&] { program.Table().OpenStatusTable(); }, opened);
    const double processorSeconds = ProcessorSeconds() - before;
    program.Run(0.1);
    return {seconds * 1000, processorSeconds * 1000};
}

void ShowDataFile(BenchProgram& program) {
    const QString path = program.directory.filePath(QStringLiteral("PUMP1.hdn"));
    WriteFile(path, "2\r\n");
    WriteDataPairs(program.directory.filePath(QStringLiteral("PUMP1.ldt")),
                   QStringList(dataBytes, QStringLiteral("5:")));
    for (const char* names : {"PUMP1.nam", "PUMP1.doc"})
        WriteFile(program.directory.filePath(QLatin1String(names)), "\r\n");
    program.dialogs.ExpectOpen(path);
    program.Table().SelectStatusTableProgram();
    program.Table().findChild<QCheckBox*>(QStringLiteral("chkViewOffline"))->setChecked(true);
    program.Run(settleTime);
    if (program.TableGrid().TextMatrix(firstDataRow, TableColumn::Decimal).isEmpty())
        throw std::runtime_error("the table does not show the data file");
}
} // namespace

std::vector<Row> MeasureTableOpening() {
    BenchProgram program;
    const QString many = WriteTable(program, manyLines);
    const QString half = WriteTable(program, manyLines / 2);
    std::vector<double> times;
    std::vector<double> growths;
    for (int i = 0; i < openings; ++i) {
        const Opening openingOfHalf = Open(program, half, manyLines / 2);
        const Opening opening = Open(program, many, manyLines);
        times.push_back(opening.milliseconds);
        growths.push_back(opening.processorMilliseconds / openingOfHalf.processorMilliseconds);
    }
    const double growth = Median(growths);
    return {RowOfLimit(QStringLiteral("ms to open a table of 32,000 lines : limit"), Median(times),
                       longestOpening),
            {QStringLiteral("  CPU times that of 16,000 lines : 2"), growth, 2, 2 / growth,
             goalOfGrowth}};
}

Row MeasureOfflineTable() {
    BenchProgram program;
    program.OpenByteTable(100, 119);
    ShowDataFile(program);
    const double before = ProcessorSeconds();
    program.Run(watchTime);
    const double milliseconds = (ProcessorSeconds() - before) * 1000;
    return RowOfLimit(QStringLiteral("CPU ms/s of an offline table at rest : limit"),
                      milliseconds / watchTime, mostProcessorTime);
}

} // namespace bench
