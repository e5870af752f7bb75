#include "results/ResultsFile.h"

#include "base/Clock.h"
#include "base/DoEvents.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"

namespace {
constexpr double waitStep = 0.05; // seconds between two yields

void YieldFor(double seconds, Clock& clock) {
    const double deadline = clock.MonotonicSeconds() + seconds;
    while (clock.MonotonicSeconds() < deadline) {
        DoEvents();
        clock.Wait(waitStep);
    }
}

bool IsEmpty(const QString& path) {
    return TextReader(path).AtEnd();
}
} // namespace

QStringList ReadResultsFile(const QString& path, Clock& clock) {
    if (IsEmpty(path))
        YieldFor(resultsFileWait, clock);
    TextReader reader(path);
    QStringList lines;
    qsizetype characters = 0;
    while (!reader.AtEnd()) {
        lines += reader.LineInput();
        characters += lines.last().size() + 1;
        if (characters > longestResults)
            throw RunTimeError(ErrorNumber::OutOfMemory);
    }
    return lines;
}
