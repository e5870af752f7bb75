#include "bench/DataTransferBench.h"

#include "base/FileSystem.h"
#include "bench/BareLoop.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include "jobs/DataFile.h"
#include "jobs/DataTransfer.h"
#include "jobs/JobProgress.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include <QTimer>
#include <stdexcept>
#include <string>

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
constexpr int bytesOfWrite = 6; // address high, address low and value, each echoed
constexpr int bytesOfRead = 4;  // address high, echoed, and address low, answered with the value
constexpr qint64 mostModeBytes = 16;
constexpr std::uint16_t bareAddress = 8176;
constexpr int bareReads = 400; // some 0.8 seconds

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
    qint64 lineBytes;   // that crossed the line either way
};

// The reference counts the bytes that the transfer needs: it holds only while these are the bytes
// that crossed the line, but for entering the board's modes.
void CheckLineBytes(const Measured& measured, qint64 needed) {
    if (measured.lineBytes < needed || measured.lineBytes > needed + mostModeBytes)
        throw std::runtime_error("the transfer sent other bytes than it is measured by: " +
                                 std::to_string(measured.lineBytes) + " for " +
                                 std::to_string(needed));
}

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
    const qint64 bytesBefore = host.port.Bytes();
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
    return {seconds, viewSeconds, host.port.Bytes() - bytesBefore};
}
} // namespace

std::vector<Row> MeasureDataTransfers(const QString& board) {
    const BoardProcess process(board, baud);
    BareLoop bare(process.Path());
    BenchLink host(process.Path(), baud);
    const QString file = host.directory.filePath(QStringLiteral("Bench.ldt"));
    WriteDataPairs(file, QStringList(imageBytes, QStringLiteral("5A")));

    constexpr int written = last - first + 1 - skipped;
    constexpr int read = last - first + 1;
    const Measured download = Transfer(host, XferMode::Download, file);
    const Measured upload = Transfer(host, XferMode::Upload, file);
    CheckLineBytes(download, qint64(written) * bytesOfWrite);
    CheckLineBytes(upload, qint64(read) * bytesOfRead);
    const double bareRate = bare.ReadsPerSecond(bareAddress, bareReads);
    const double inView = download.viewSeconds / (written * bytesOfWrite * byteTime);
    constexpr double readsOfLine = 1 / (bytesOfRead * byteTime);
    return {RowOfRates(QStringLiteral("bytes downloaded/s at 19200 : line"),
                       written / download.seconds, 1 / (bytesOfWrite * byteTime), goal),
            RowOfRates(QStringLiteral("bytes uploaded/s at 19200 : line"), read / upload.seconds,
                       readsOfLine, goal),
            RowOfRates(QStringLiteral("  reads in a bare loop just after"), bareRate, readsOfLine,
                       goal),
            {QStringLiteral("busy view, ms per 100 s of download : none"), inView * 1e5, 0,
             1 - inView, goalOfView}};
}

} // namespace bench
