#include "bench/DumpRow.h"

#include "bench/BenchFiles.h"
#include "bench/BenchLink.h"
#include "bench/BoardProcess.h"

namespace bench {

namespace {
constexpr double goal = 0.95;
constexpr int baud = 19200;
constexpr double bitsPerByte = 10;
constexpr double fixedWaits = 0.1 + 2.0; // seconds
constexpr int imageSize = 16 * 1024;     // bytes
constexpr int imageStart = 0x2000;
constexpr int recordSize = 16; // data bytes

QByteArray Hex(int value, int digits) {
    return QByteArray::number(value, 16).rightJustified(digits, '0').toUpper();
}

// The image as the compiler writes it. Nobody reads the check byte of a record.
QByteArray HexFile() {
    QByteArray text;
    for (int offset = 0; offset < imageSize; offset += recordSize) {
        text += ':' + Hex(recordSize, 2) + Hex(imageStart + offset, 4) + "00";
        for (int place = 0; place < recordSize; ++place)
            text += Hex((offset + place * 7) & 0xFF, 2);
        text += "00\r\n";
    }
    return text + ":00000001FF\r\n";
}

QString WriteProgramSet(const BenchLink& host) {
    const auto path = [&](const char* name) {
        return host.directory.filePath(QLatin1String(name));
    };
    WriteFile(path("PUMP1.hdn"), "3\r\n"); // board index 51, a board without configuration bytes
    WriteFile(path("PUMP1.rev"), "PUMP1:301\r\n");
    WriteFile(path("PUMP1.hex"), HexFile());
    return path("PUMP1.hdn");
}
} // namespace

Row MeasureDump(const QString& board) {
    const BoardProcess process(board, baud);
    BenchLink host(process.Path(), baud);
    host.link.DownloadFile(WriteProgramSet(host));
    double start = 0;
    qint64 bytesBefore = 0;
    host.dialogs.Expect(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes, [&] {
        start = host.clock.MonotonicSeconds();
        bytesBefore = host.port.Bytes();
    });
    double end = 0;
    host.dialogs.Expect(QStringLiteral("Program Download"), MsgAnswer::Ok,
                        [&] { end = host.clock.MonotonicSeconds(); });
    host.link.DumpProgram();
    host.Check();
    const double seconds = end - start - fixedWaits;
    return RowOfRates(QStringLiteral("bytes/s, dump of 16 KiB at 19200 : line"),
                      double(host.port.Bytes() - bytesBefore) / seconds, baud / bitsPerByte, goal);
}

} // namespace bench
