#include "bench/DataTransferBench.h"
#include "bench/DumpRow.h"
#include "bench/ExchangeRow.h"
#include "bench/PacedRows.h"
#include "bench/Row.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <QApplication>
#include <QDir>
#include <thread>

namespace {
// The programs stand beside this one.
QString Beside(const QString& program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program);
}

std::vector<bench::Row> MeasureAll() {
    const QString board = Beside(QStringLiteral("halden-board"));
    std::vector<bench::Row> rows{bench::MeasureExchanges()};
    for (const bench::Row& row : bench::MeasurePacedReads(board))
        rows.push_back(row);
    rows.push_back(bench::MeasureDump(board));
    for (const bench::Row& row : bench::MeasureDataTransfers(board))
        rows.push_back(row);
    return rows;
}
// Bytes are paced by time-outs and handed over by threads that must get a processor in time: what
// else runs on the machine shows in every figure.
void PrintMachine() {
    double load = 0;
    if (getloadavg(&load, 1) == 1)
        std::printf("load average before the run: %.2f on %u processors\n\n", load,
                    std::thread::hardware_concurrency());
}
} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the busy view is measured without a screen too
    const QApplication application(argc, argv);
    try {
        PrintMachine();
        const auto rows = MeasureAll();
        std::fputs(bench::TableText(rows).toLocal8Bit().constData(), stdout);
        return std::all_of(rows.begin(), rows.end(), bench::IsReached) ? EXIT_SUCCESS
                                                                       : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quentor-bench: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
