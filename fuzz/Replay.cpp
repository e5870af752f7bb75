#include "FuzzTarget.h"

#include <algorithm>
#include <cstdio>
#include <QDirIterator>
#include <QFile>

// Runs files through a target, one after the other, without a fuzzer: the seeds, and every input
// that ever failed. "fuzz_replay NAME FOLDER..." runs all files of the folders through the target
// of that name. A broken rule ends the process; a target or an input that is not there counts as a
// failure too.

namespace {
const FuzzTarget* FindTarget(const QString& name) {
    const auto& targets = FuzzTargets();
    const auto found = std::find_if(targets.begin(), targets.end(), [&](const FuzzTarget& target) {
        return name == QLatin1String(target.name);
    });
    return found == targets.end() ? nullptr : &*found;
}

// Number of the files that were run; -1 if one cannot be read.
int RunFolder(const FuzzTarget& target, const QString& folder) {
    int count = 0;
    for (QDirIterator files(folder, QDir::Files); files.hasNext(); ++count) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray content = file.readAll();
        std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
        target.run({reinterpret_cast<const std::uint8_t*>(content.constData()),
                    static_cast<std::size_t>(content.size())});
    }
    return count;
}
} // namespace

int main(int argc, char** argv) {
    PrepareFuzzing();
    const FuzzTarget* target = argc < 3 ? nullptr : FindTarget(QString::fromLocal8Bit(argv[1]));
    if (!target) {
        std::fprintf(stderr, "usage: fuzz_replay NAME FOLDER...\n");
        return 2;
    }
    int total = 0;
    for (int i = 2; i < argc; ++i) {
        const int count = RunFolder(*target, QString::fromLocal8Bit(argv[i]));
        if (count < 0)
            return 1;
        total += count;
    }
    std::fprintf(stderr, "%d inputs\n", total);
    return total > 0 ? 0 : 1;
}
