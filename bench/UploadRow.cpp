#include "bench/UploadRow.h"

#include "bench/BareLoop.h"
#include "bench/BenchFiles.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"
#include "link/ProgramIdent.h"
#include "link/TargetBoards.h"
#include "link/TransferProgress.h"
#include "link/views/frmDownloadProg.h"

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double byteTime = 10.0 / baud; // seconds: start bit, eight data bits, stop bit
constexpr std::uint16_t bareAddress = 8176;
constexpr int bareReads = 400; // some 0.8 seconds
constexpr qint16 k2021 = 52;   // has the smallest image and no configuration bytes
} // namespace

std::vector<Row> MeasureUpload(const QString& board) {
    const BoardProcess process(board, baud);
    BareLoop bare(process.Path());
    BenchLink host(process.Path(), baud);
    const QString set = host.directory.filePath(QStringLiteral("PUMP1.hdn"));
    WriteFile(set, "4\r\n");
    host.link.UploadFile(set);
    host.link.SetInUploadMode(true);
    host.link.RSRead(QStringLiteral("B8176")); // enters read mode
    const double bareBefore = bare.ReadsPerSecond(bareAddress, bareReads);
    double end = 0;
    host.dialogs.Expect(QStringLiteral("Program Upload"), MsgAnswer::Ok,
                        [&] { end = host.clock.MonotonicSeconds(); });
    frmDownloadProg view(host.link);
    view.SetTransferMode(TransferMode::Upload);
    const double start = host.clock.MonotonicSeconds();
    view.exec();
    host.Check();
    const int bytes = IdentBlock::Length + FindTargetBoard(k2021)->imageLength;
    const double bareAfter = bare.ReadsPerSecond(bareAddress, bareReads);
    constexpr double line = 1 / (4 * byteTime);
    return {RowOfRates(QStringLiteral("program bytes uploaded/s at 19200 : line"),
                       bytes / (end - start), line, goal),
            RowOfRates(QStringLiteral("  reads in a bare loop just before and after"),
                       (bareBefore + bareAfter) / 2, line, goal)};
}

} // namespace bench
