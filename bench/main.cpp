#include "bench/ExchangeRow.h"
#include "bench/PacedRows.h"
#include "bench/Row.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <QCoreApplication>
#include <QDir>

namespace {
// The programs stand beside this one.
QString Beside(const QString& program) {
    return QDir(QCoreApplication::applicationDirPath()).filePath(program);
}

std::vector<bench::Row> MeasureAll() {
    std::vector<bench::Row> rows{bench::MeasureExchanges()};
    for (const bench::Row& row : bench::MeasurePacedReads(Beside(QStringLiteral("halden-board"))))
        rows.push_back(row);
    return rows;
}
} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        const auto rows = MeasureAll();
        std::fputs(bench::TableText(rows).toLocal8Bit().constData(), stdout);
        return std::all_of(rows.begin(), rows.end(), bench::IsReached) ? EXIT_SUCCESS
                                                                       : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "quentor-bench: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
