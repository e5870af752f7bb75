#include "bench/DataTransferBench.h"

#include "base/FileSystem.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include "jobs/DataFile.h"
#include "jobs/DataTransfer.h"
#include "jobs/JobProgress.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include <QTimer>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr double goalOfView = 0.98; // what is left to the line
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr qint16 k2012 = 50;
constexpr qint16 first = 32;
constexpr qint16 last = 8175;
constexpr int skipped = 511 - 156 + 1; // addresses that a download leaves alone
constexpr int imageBytes = 8176;

// Passes everything on to the view and adds up the time that the view takes.
class TimedProgress final : public JobProgress {
public:
    TimedProgress(JobProgress& view, const Clock& clock) : view_(view), clock_(clock) {}
    double Seconds() const { return seconds_; }

    void ShowMessage(const QString& text) override {
        Time([&] { view_.ShowMessage(text); });
    }
    void ShowSecondLine(const QString& text) override {
        Time([&] { view_.ShowSecondLine(text); });
    }
    void SetRange(qint32 min, qint32 max) override {
        Time([&] { view_.SetRange(min, max); });
    }
    void SetValue(qint32 value) override {
        Time([&] { view_.SetValue(value); });
    }
    bool Cancelled() const override { return view_.Cancelled(); }
    void ClearCancel() override { view_.ClearCancel(); }
    void Yield() override {
        Time([&] { view_.Yield(); });
    }

private:
    template <class Work>
    void Time(Work work) {
        const double start = clock_.MonotonicSeconds();
        work();
        seconds_ += clock_.MonotonicSeconds() - start;
    }

    JobProgress& view_;
    const Clock& clock_;
    double seconds_ = 0;
};

struct Measured {
    double seconds;     // of the whole transfer
    double viewSeconds; // of these, in the view
};

Measured Transfer(BenchLink& host, qint16 mode, const QString& file) {
    gXferMode = mode;
    gXferBoard = k2012;
    gXferFile = file;
    gXferFrom = first;
    gXferTo = last;
    const FileSystem files;
    DataTransfer transfer(host.link, host.dialogs, files);
    double seconds = 0;
    double viewSeconds = 0;
    WaitJobs jobs;
    jobs.Register(WaitJob::TransferData, [&](JobProgress& view) {
        TimedProgress timed(view, host.clock);
        const double start = host.clock.MonotonicSeconds();
        transfer.TransferData(timed);
        seconds = host.clock.MonotonicSeconds() - start;
        viewSeconds = timed.Seconds();
    });
    QTimer backgroundUpdate;
    backgroundUpdate.setInterval(3600 * 1000); // goes on after the job; nobody is there to update
    WaitJobRunner(jobs, backgroundUpdate, host.clock, nullptr).RunWaitJob(WaitJob::TransferData);
    host.Check();
    return {seconds, viewSeconds};
}
} // namespace

std::vector<Row> MeasureDataTransfers(const QString& board) {
    const BoardProcess process(board, baud);
    BenchLink host(process.Path(), baud);
    const QString file = host.directory.filePath(QStringLiteral("Bench.ldt"));
    WriteDataPairs(file, QStringList(imageBytes, QStringLiteral("5A")));

    constexpr int written = last - first + 1 - skipped;
    constexpr int read = last - first + 1;
    const Measured download = Transfer(host, XferMode::Download, file);
    const Measured upload = Transfer(host, XferMode::Upload, file);
    const double inView = download.viewSeconds / (written * 6 * byteTime);
    return {RowOfRates(QStringLiteral("bytes downloaded/s at 19200 : line"),
                       written / download.seconds, 1 / (6 * byteTime), goal),
            RowOfRates(QStringLiteral("bytes uploaded/s at 19200 : line"), read / upload.seconds,
                       1 / (4 * byteTime), goal),
            {QStringLiteral("busy view, ms per 100 s of download : none"), inView * 1e5, 0,
             1 - inView, goalOfView}};
}

} // namespace bench
