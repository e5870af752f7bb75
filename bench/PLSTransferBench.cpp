#include "bench/PLSTransferBench.h"

#include "bench/BareLoop.h"
#include "bench/BenchFiles.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "pls/PLSJobs.h"
#include "session/Globals.h"
#include <QTimer>
#include <stdexcept>
#include <string>

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr int r6500 = 69;
constexpr int channels = 64;
constexpr int setpoints = 8; // of each channel
constexpr int scaleFactor = 4096;
constexpr int step = scaleFactor / setpoints;
constexpr std::uint16_t bareAddress = 8176;
constexpr int bareReads = 400; // some 0.8 seconds

// Exchanges of the commands, two bytes each: handshake, data, ready poll.
constexpr int exchangesOfWord = 4;
constexpr int exchangesOfRecord = 11;
constexpr int exchangesOfRecall = 6;
constexpr int configurationSent = 4 * exchangesOfRecord + 7;
constexpr int configurationRead = 21 + 2 * exchangesOfWord;
// Each setpoint asks for the scale factor first, and a channel is cleared once. A recall goes on
// until the first setpoint has come again.
constexpr int exchangesDown =
    configurationSent +
    channels * (setpoints * (exchangesOfWord + exchangesOfRecord) + exchangesOfRecord);
constexpr int exchangesUp = configurationRead + channels * (setpoints + 1) * 2 * exchangesOfRecall;

QByteArray Digits(int number) {
    return QByteArray::number(number).rightJustified(4, '0');
}

void WriteSet(const QString& hdnFile) {
    const QString base = hdnFile.chopped(3);
    WriteFile(hdnFile, "E\r\n");
    WriteFile(base + QStringLiteral("PCF"), "644096" + QByteArray(1 + 8 * 3 + 16, '0') + "%\r\n");
    QByteArray text = ":4096\r\n:0000\r\n";
    for (int channel = 0; channel < channels; ++channel) {
        text += ":" + QByteArray::number(channel, 8).rightJustified(2, '0') + "1:000:000:000\r\n";
        for (int on = channel; on < scaleFactor; on += step)
            text += "|" + Digits(on) + Digits((on + step / 2) % scaleFactor) + "\r\n";
    }
    WriteFile(base + QStringLiteral("CHL"), text + "%\r\n");
}

// Seconds of one job; raises when other bytes crossed the line than those it is measured by.
double SecondsOf(qint16 job, int exchanges, BenchLink& host) {
    PLSJobs plsJobs(host.link, host.dialogs);
    WaitJobs jobs;
    plsJobs.Register(jobs);
    QTimer backgroundUpdate;
    backgroundUpdate.setInterval(3600 * 1000); // goes on after the job; nobody is there to update
    WaitJobRunner runner(jobs, backgroundUpdate, host.clock, nullptr);
    const qint64 before = host.port.Bytes();
    const double start = host.clock.MonotonicSeconds();
    runner.RunWaitJob(job);
    const double seconds = host.clock.MonotonicSeconds() - start;
    host.Check();
    const qint64 bytes = host.port.Bytes() - before;
    if (bytes != 2 * exchanges)
        throw std::runtime_error("the transfer sent other bytes than it is measured by: " +
                                 std::to_string(bytes) + " for " + std::to_string(2 * exchanges));
    return seconds;
}

Row RowOfJob(const QString& name, int exchanges, double seconds) {
    return RowOfRates(name, 2 * exchanges / seconds, 1 / byteTime, goal);
}
} // namespace

std::vector<Row> MeasurePLSTransfers(const QString& board) {
    const BoardProcess process(board, baud, {QStringLiteral("--model"), QString::number(r6500)});
    BareLoop bare(process.Path());
    BenchLink host(process.Path(), baud);
    gHdnFile = host.directory.filePath(QStringLiteral("CAMS.hdn"));
    WriteSet(gHdnFile);
    host.link.RSRead(QStringLiteral("B8176")); // enters read mode
    const double bareBefore = bare.ReadsPerSecond(bareAddress, bareReads);
    const double down = SecondsOf(WaitJob::DownloadPLSChannels, exchangesDown, host);
    const double up = SecondsOf(WaitJob::UploadPLSChannels, exchangesUp, host);
    host.link.RSRead(QStringLiteral("B8176"));
    const double bareAfter = bare.ReadsPerSecond(bareAddress, bareReads);
    return {RowOfJob(QStringLiteral("PLS download of 64 x 8, bytes/s : line"), exchangesDown, down),
            RowOfJob(QStringLiteral("PLS upload of 64 x 8, bytes/s : line"), exchangesUp, up),
            RowOfRates(QStringLiteral("  reads in a bare loop just before and after"),
                       (bareBefore + bareAfter) / 2, 1 / (4 * byteTime), goal)};
}

} // namespace bench
