#include "bench/BrowserRow.h"
#include "bench/DataTransferBench.h"
#include "bench/DumpRow.h"
#include "bench/ExchangeRow.h"
#include "bench/PacedRows.h"
#include "bench/PLSTransferBench.h"
#include "bench/ResultsRow.h"
#include "bench/Row.h"
#include "bench/StartRows.h"
#include "bench/TableFileRows.h"
#include "bench/TableRefreshRows.h"
#include "bench/TrendRows.h"
#include "bench/TypingRow.h"
#include "bench/UploadRow.h"
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <QApplication>
#include <QDir>
#include <QStringList>
#include <thread>
#include <utility>

namespace {
// The programs stand beside this one.
QString Beside(const QString& program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program);
}

// The measurements by name, in the order in which they run.
using Measurement = std::pair<QString, std::function<std::vector<bench::Row>()>>;

std::vector<Measurement> Measurements() {
    const QString board = Beside(QStringLiteral("halden-board"));
    return {
        {QStringLiteral("exchanges"), [] { return std::vector{bench::MeasureExchanges()}; }},
        {QStringLiteral("reads"), [board] { return bench::MeasurePacedReads(board); }},
        {QStringLiteral("dump"), [board] { return std::vector{bench::MeasureDump(board)}; }},
        {QStringLiteral("upload"), [board] { return bench::MeasureUpload(board); }},
        {QStringLiteral("data"), [board] { return bench::MeasureDataTransfers(board); }},
        {QStringLiteral("pls"), [board] { return bench::MeasurePLSTransfers(board); }},
        {QStringLiteral("table"), [board] { return bench::MeasureTableRefresh(board); }},
        {QStringLiteral("trend"), [board] { return bench::MeasureTrend(board); }},
        {QStringLiteral("typing"), [board] { return std::vector{bench::MeasureTyping(board)}; }},
        {QStringLiteral("open"), bench::MeasureTableOpening},
        {QStringLiteral("offline"), [] { return std::vector{bench::MeasureOfflineTable()}; }},
        {QStringLiteral("browser"), [] { return std::vector{bench::MeasureBrowser()}; }},
        {QStringLiteral("results"), [] { return std::vector{bench::MeasureResults()}; }},
        {QStringLiteral("start"),
         [] { return bench::MeasureStart(Beside(QStringLiteral("quentor"))); }}};
}

void Print(const QString& text) {
    std::fputs(text.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

// Runs those that are named, or all, and prints each row as soon as it is there. True when all
// goals are reached.
bool Measure(const QStringList& names) {
    bool allReached = true;
    Print(bench::HeadText());
    for (const auto& [name, measure] : Measurements()) {
        if (!names.isEmpty() && !names.contains(name))
            continue;
        for (const bench::Row& row : measure()) {
            Print(bench::RowText(row));
            allReached = allReached && bench::IsReached(row);
        }
    }
    return allReached;
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
        return Measure(application.arguments().mid(1)) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quentor-bench: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
