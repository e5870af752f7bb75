#include "bench/TypingRow.h"

#include "bench/BenchProgram.h"
#include "bench/BoardProcess.h"
#include "bench/PaintWatch.h"
#include "bench/Typist.h"
#include "controls/grid/Grid.h"
#include "statustable/AddressEntry.h"

namespace bench {

namespace {
constexpr double limit = 50; // milliseconds
constexpr int baud = 9600;
constexpr int typedRow = firstDataRow + 5;
} // namespace

Row MeasureTyping(const QString& board) {
    const BoardProcess process(board, baud, {QStringLiteral("--demo")});
    BenchProgram program;
    program.OpenByteTable(100, 119);
    program.GoOnline(process.Path(), baud);
    Grid& grid = program.TableGrid();
    grid.SetCell(typedRow, TableColumn::Address);
    program.Run(0.5);
    const QModelIndex cell = grid.model()->index(typedRow - grid.FixedRows(), TableColumn::Address);
    QEventLoop events;
    Typist typist({grid, u'B', [&grid] { return grid.TextMatrix(typedRow, TableColumn::Address); }},
                  program.clock, events);
    const PaintWatch watch(*grid.viewport(), [&](const QRegion& painted) {
        if (painted.contains(grid.visualRect(cell).center()))
            typist.TakePaint();
    });
    events.exec();
    program.CheckOnline();
    return RowOfLimit(QStringLiteral("ms from key to screen, 99 %, 9600 : limit"),
                      typist.SlowestPercent(), limit);
}

} // namespace bench
