#include "bench/TypingRow.h"

#include "bench/BenchProgram.h"
#include "bench/BoardProcess.h"
#include "bench/PaintWatch.h"
#include "controls/grid/Grid.h"
#include "statustable/AddressEntry.h"
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <QCoreApplication>
#include <QInputDevice>
#include <QKeyEvent>
#include <random>
#include <stdexcept>
#include <thread>

namespace bench {

namespace {
constexpr double limit = 50; // milliseconds
constexpr int baud = 9600;
constexpr int keys = 400;
constexpr int warmUpKeys = 4;
constexpr int shortestPauseMs = 20; // between a key shown and the next one
constexpr int longestPauseMs = 70;
constexpr auto longestWait = std::chrono::seconds(5);
constexpr int typedRow = firstDataRow + 5;

// Types "B" and takes it back, again and again, each key when the one before is on the screen.
class Typist {
public:
    Typist(Grid& grid, const Clock& clock, QEventLoop& events)
        : grid_(grid), clock_(clock), events_(events), thread_([this] { Type(); }) {}
    ~Typist() { thread_.join(); }
    Typist(const Typist&) = delete;
    Typist& operator=(const Typist&) = delete;

    // To be called when the grid was painted.
    void TakePaint(const QRegion& painted) {
        const QModelIndex cell = grid_.model()->index(typedRow - grid_.FixedRows(), addressColumn);
        if (!painted.contains(grid_.visualRect(cell).center()))
            return;
        const std::lock_guard lock(mutex_);
        if (!waiting_ || grid_.TextMatrix(typedRow, addressColumn) != expected_)
            return;
        waiting_ = false;
        times_.push_back((clock_.MonotonicSeconds() - posted_) * 1000);
        shown_.notify_one();
    }
    // Once the loop has ended: milliseconds for each key that was shown.
    const std::vector<double>& Times() const { return times_; }

private:
    static constexpr int addressColumn = TableColumn::Address;

    void Type() {
        std::mt19937 random(1);
        std::uniform_int_distribution<int> pause(shortestPauseMs * 1000, longestPauseMs * 1000);
        for (int i = 0; i < keys; ++i) {
            std::this_thread::sleep_for(std::chrono::microseconds(pause(random)));
            std::unique_lock lock(mutex_);
            Post(i % 2 == 0);
            if (!shown_.wait_for(lock, longestWait, [this] { return !waiting_; }))
                break;
        }
        QMetaObject::invokeMethod(&events_, &QEventLoop::quit, Qt::QueuedConnection);
    }
    void Post(bool letter) {
        expected_ = letter ? QStringLiteral("B") : QString();
        waiting_ = true;
        posted_ = clock_.MonotonicSeconds();
        QCoreApplication::postEvent(
            &grid_,
            letter ? new QKeyEvent(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, QStringLiteral("B"))
                   : new QKeyEvent(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier,
                                   QStringLiteral("\b")));
    }

    Grid& grid_;
    const Clock& clock_;
    QEventLoop& events_;
    std::mutex mutex_;
    std::condition_variable shown_;
    bool waiting_ = false; // a key was posted and is not on the screen
    QString expected_;     // text of the cell after it
    double posted_ = 0;    // seconds
    std::vector<double> times_;
    std::thread thread_;
};

double Percentile99(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[(values.size() * 99 + 99) / 100 - 1];
}
} // namespace

Row MeasureTyping(const QString& board) {
    const BoardProcess process(board, baud, {QStringLiteral("--demo")});
    BenchProgram program;
    program.OpenByteTable(100, 119);
    program.GoOnline(process.Path(), baud);
    Grid& grid = program.TableGrid();
    grid.SetCell(typedRow, TableColumn::Address);
    program.Run(0.5);
    QInputDevice::primaryKeyboard(); // made by the first key event, which would be the thread's
    QEventLoop events;
    Typist typist(grid, program.clock, events);
    const PaintWatch watch(*grid.viewport(),
                           [&](const QRegion& painted) { typist.TakePaint(painted); });
    events.exec();
    program.CheckOnline();
    if (typist.Times().size() != keys)
        throw std::runtime_error("a key does not show");
    const std::vector<double> times(typist.Times().begin() + warmUpKeys, typist.Times().end());
    return RowOfLimit(QStringLiteral("ms from key to screen, 99 %, 9600 : limit"),
                      Percentile99(times), limit);
}

} // namespace bench
