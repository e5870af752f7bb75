#include "base/FileSystem.h"
#include "FuzzFile.h"
#include "jobs/DataFile.h"
#include "statustable/CellTexts.h"
#include "statustable/OfflineData.h"

// The .LDT file: as the data transfer reads it, and as the status table shows it offline.

namespace {
constexpr qsizetype mostPairs = 8192;

void ShowOffline(const QString& path, qint16 board) {
    OfflineData data;
    Passes([&] { ReadOfflineData(path, board, data); });
    for (const char* address : {"B0", "B70", "W218", "D8190", "B100.3", "F991", "1FFFH", "X10"})
        OfflineCellTexts(QLatin1String(address), data);
    for (const qint64 address : {-1, 0, 8192, 8193})
        Require(data.ByteAt(address) >= 0 && data.ByteAt(address) <= 255, "data bytes are bytes");
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.ldt"));
    file.Put(input);
    Passes([&] {
        const QStringList pairs = ReadDataPairs(FileSystem(), file.Path(), mostPairs);
        Require(pairs.size() <= mostPairs, "no more pairs than asked for");
        for (const QString& pair : pairs)
            Require(pair.size() == 2, "a pair is two characters");
    });
    ShowOffline(file.Path(), 50);
    ShowOffline(file.Path(), 51);
}

const RegisteredTarget target("ldt", Run);
} // namespace
