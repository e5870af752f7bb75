#include "bench/TrendRows.h"

#include "bench/BareLoop.h"
#include "bench/BenchProgram.h"
#include "bench/BoardProcess.h"
#include "bench/Median.h"
#include <algorithm>
#include <cmath>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QRadioButton>
#include <stdexcept>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr int byteTimesOfRead = 4;
constexpr std::uint8_t address = 100; // no other read of the program sends this byte
constexpr double interval = 0.1;      // seconds
constexpr double latest = 5.0;        // milliseconds
constexpr double pacedTime = 20.0;    // seconds
constexpr int slices = 11;
constexpr double sliceTime = 0.5; // seconds
constexpr int bareReads = 100;    // a slice

template <class Control>
Control& Find(QWidget& view, const char* name) {
    auto* control = view.findChild<Control*>(QLatin1String(name));
    if (!control)
        throw std::runtime_error(name);
    return *control;
}

// Shows the trend view on the byte variable, not yet sampling.
QWidget& OpenTrend(BenchProgram& program) {
    MdiChildren& children = program.application.MainWindow().Children();
    children.Show(QStringLiteral("frmTrending"));
    QWidget& view = *children.View(QStringLiteral("frmTrending"));
    Find<QComboBox>(view, "cboTargetBoard").setCurrentIndex(2);
    auto& variable = Find<QComboBox>(view, "cboAddress");
    variable.setEditText(u'B' + QString::number(address));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&variable, &enter);
    Find<QRadioButton>(view, "optOptions(1)").click();
    return view;
}

void SelectInterval(QWidget& view, int entry) {
    auto& intervals = Find<QComboBox>(view, "cboOptions");
    intervals.setCurrentIndex(entry);
    Q_EMIT intervals.activated(entry);
}

// Milliseconds that 95 of 100 samples are at most behind their moment. The grid of moments is that
// of the earliest sample: none is early. Raises when one of them has no sample.
double Lateness(const std::vector<double>& moments) {
    if (moments.size() < pacedTime / interval - 1)
        throw std::runtime_error("samples are missing");
    double early = 0;
    for (std::size_t i = 0; i < moments.size(); ++i)
        early = std::min(early, moments[i] - moments[0] - double(i) * interval);
    std::vector<double> late;
    for (std::size_t i = 0; i < moments.size(); ++i)
        late.push_back((moments[i] - moments[0] - double(i) * interval - early) * 1000);
    std::sort(late.begin(), late.end());
    return late[(late.size() * 95 + 99) / 100 - 1];
}

Row MeasurePace(BenchProgram& program, QWidget& view) {
    SelectInterval(view, 1);
    program.port.NoteTimesOf(address, program.clock);
    program.Run(pacedTime);
    return RowOfLimit(QStringLiteral("ms late of \"100 msec\" samples, 95 % : limit"),
                      Lateness(program.port.NotedTimes()), latest);
}

double SamplesPerSecond(BenchProgram& program) {
    const qint64 before = program.port.Sent(address, address);
    const double start = program.clock.MonotonicSeconds();
    program.Run(sliceTime);
    const double seconds = program.clock.MonotonicSeconds() - start;
    return double(program.port.Sent(address, address) - before) / seconds;
}
} // namespace

std::vector<Row> MeasureTrend(const QString& board) {
    const BoardProcess process(board, baud, {QStringLiteral("--demo")});
    BareLoop bare(process.Path());
    BenchProgram program;
    QWidget& view = OpenTrend(program);
    program.GoOnline(process.Path(), baud);
    Find<QCheckBox>(view, "chkAcquire").setChecked(true);
    std::vector<Row> rows{MeasurePace(program, view)};
    SelectInterval(view, 0);
    std::vector<double> rates;
    std::vector<double> bareRates;
    for (int slice = 0; slice < slices; ++slice) {
        rates.push_back(SamplesPerSecond(program));
        bareRates.push_back(bare.ReadsPerSecond(address, bareReads));
    }
    program.CheckOnline();
    constexpr double line = 1 / (byteTimesOfRead * byteTime);
    rows.push_back(RowOfRates(QStringLiteral("continuous samples/s at 19200 : line"), Median(rates),
                              line, goal));
    rows.push_back(RowOfRates(QStringLiteral("  the same in a bare loop : line"), Median(bareRates),
                              line, goal));
    return rows;
}

} // namespace bench
