#include "FuzzFile.h"
#include "results/ResultsText.h"
#include "support/VirtualClock.h"
#include <algorithm>

// The results files .err and .gbl, and the parting of their lines for the text box.

namespace {
constexpr qsizetype longestLine = 40;

qsizetype Visible(const QString& text) {
    return std::count_if(text.begin(), text.end(),
                         [](QChar c) { return c != u'\r' && c != u'\n'; });
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.err"));
    static const bool named = (file.AlsoAs(QStringLiteral("S.gbl")), true);
    Require(named, "both files are there");
    file.Put(input);
    VirtualClock clock;
    gResultsText.clear();
    const QString hdnFile = FuzzFolder() + QStringLiteral("/S.hdn");
    for (const qint16 mode : {ResultsMode::CompileErrors, ResultsMode::NewSearch})
        Passes([&] {
            const QString text = ResultsFor(mode, hdnFile, clock);
            Require(Visible(WithLongLinesParted(text, longestLine)) == Visible(text),
                    "parting a line loses no character");
        });
}

const RegisteredTarget target("results", Run);
} // namespace
