#include "bench/ResultsRow.h"

#include "bench/BenchFiles.h"
#include "bench/BenchProgram.h"
#include "bench/Median.h"
#include "bench/PaintWatch.h"
#include "results/ResultsText.h"
#include "session/Globals.h"
#include <QPlainTextEdit>
#include <stdexcept>

namespace bench {

namespace {
constexpr double limit = 500; // milliseconds
constexpr int lines = 50000;
constexpr int searches = 7;

QString WriteResults(const BenchProgram& program) {
    QByteArray text = "Search results\r\nB100\r\n";
    for (int line = 2; line < lines; ++line)
        text += "PUMP1.LMN   block " + QByteArray::number(line) +
                "   contact B100.3 of the feed, output Y10\r\n";
    WriteFile(program.directory.filePath(QStringLiteral("PUMP1.gbl")), text);
    const QString path = program.directory.filePath(QStringLiteral("PUMP1.hdn"));
    WriteFile(path, "2\r\n");
    return path;
}

QPlainTextEdit& TextBox(BenchProgram& program) {
    program.application.MainWindow().Views().frmViewResults(ResultsMode::Stored);
    auto* box = program.application.MainWindow().findChild<QPlainTextEdit*>(
        QStringLiteral("txtViewErrors"));
    if (!box)
        throw std::runtime_error("the program has no results view");
    return *box;
}
} // namespace

Row MeasureResults() {
    BenchProgram program;
    gHdnFile = WriteResults(program);
    QPlainTextEdit& box = TextBox(program);
    std::vector<double> times;
    for (int search = 0; search < searches; ++search) {
        gResultsText.clear();
        box.clear();
        program.Run(0.1);
        const double seconds = SecondsUntilShown(
            *box.viewport(),
            [&] { program.application.MainWindow().Tools().GlobalSearch(true, false); },
            [&] { return box.blockCount() > lines; });
        times.push_back(seconds * 1000);
    }
    return RowOfLimit(QStringLiteral("ms to show 50,000 search results : limit"), Median(times),
                      limit);
}

} // namespace bench
