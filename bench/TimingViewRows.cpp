#include "bench/TimingViewRows.h"

#include "bench/BenchProgram.h"
#include "bench/BoardProcess.h"
#include "bench/Median.h"
#include "bench/PaintWatch.h"
#include "bench/Typist.h"
#include "pls/views/frmTiming.h"
#include <QComboBox>
#include <QLineEdit>
#include <stdexcept>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int byteTimesOfRead = 8;
constexpr int slices = 11;
constexpr double sliceTime = 0.5; // seconds
constexpr double longestUpload = 60;
constexpr double limit = 50; // milliseconds from key to screen
constexpr std::uint8_t readCommands[] = {0x28, 0x48, 0x58};

// The program with its timing view online to a K2041 that turns slowly.
class LiveTimingView {
public:
    LiveTimingView(const QString& board, int baud)
        : process_(board, baud,
                   {QStringLiteral("--demo"), QStringLiteral("--model"), QStringLiteral("55")}) {
        auto& window = program.application.MainWindow();
        window.Children().Show(QStringLiteral("frmTiming"));
        view_ = window.findChild<frmTiming*>();
        if (!view_)
            throw std::runtime_error("the program has no timing view");
        view_->parentWidget()->showMaximized();
        ChooseBoard();
        program.GoOnline(process_.Path(), baud);
        for (double waited = 0; !view_->gFirstPassOnline(); waited += sliceTime) {
            if (waited > longestUpload)
                throw std::runtime_error("the timing view does not come online");
            program.Run(sliceTime);
        }
        program.Run(sliceTime);
    }
    QLineEdit& OnEntry() { return *view_->findChild<QLineEdit*>(QStringLiteral("txtTmg(2)")); }
    double ReadsPerSecond() {
        const qint64 before = Reads();
        const double start = program.clock.MonotonicSeconds();
        program.Run(sliceTime);
        return double(Reads() - before) / (program.clock.MonotonicSeconds() - start);
    }

    BenchProgram program;

private:
    void ChooseBoard() {
        auto* boards = view_->findChild<QComboBox*>(QStringLiteral("cboTargetBoard"));
        boards->setCurrentIndex(0);
    }
    qint64 Reads() const {
        qint64 reads = 0;
        for (const std::uint8_t command : readCommands)
            reads += program.port.Sent(command, command);
        return reads;
    }

    BoardProcess process_;
    frmTiming* view_ = nullptr;
};

Row MeasureReads(const QString& board) {
    constexpr int baud = 19200;
    constexpr double line = baud / (10.0 * byteTimesOfRead);
    LiveTimingView live(board, baud);
    std::vector<double> rates;
    for (int slice = 0; slice < slices; ++slice)
        rates.push_back(live.ReadsPerSecond());
    live.program.CheckOnline();
    return RowOfRates(QStringLiteral("timing view reads/s at 19200 : line"), Median(rates), line,
                      goal);
}

Row MeasureEntry(const QString& board) {
    LiveTimingView live(board, 9600);
    QLineEdit& entry = live.OnEntry();
    entry.setFocus();
    entry.clear();
    QEventLoop events;
    Typist typist({entry, u'1', [&entry] { return entry.text(); }}, live.program.clock, events);
    const PaintWatch watch(entry, [&](const QRegion&) { typist.TakePaint(); });
    events.exec();
    live.program.CheckOnline();
    return RowOfLimit(QStringLiteral("ms from key to screen, timing view, 99 %, 9600 : limit"),
                      typist.SlowestPercent(), limit);
}
} // namespace

std::vector<Row> MeasureTimingView(const QString& board) {
    return {MeasureReads(board), MeasureEntry(board)};
}

} // namespace bench
