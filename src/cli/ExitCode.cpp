#include "cli/ExitCode.h"

#include <algorithm>
#include <array>

namespace {
struct Row {
    ExitCode code;
    const char* word;
    const char* meaning;
};

constexpr std::array<Row, 9> rows = {{
    {ExitCode::Done, "done", "all of it was done, and the board or the disk has said so"},
    {ExitCode::Failed, "failed", "the board did not do it, or not all of it"},
    {ExitCode::Usage, "usage", "the arguments make no sense; nothing was done"},
    {ExitCode::Cancelled, "cancelled", "the user said no or interrupted"},
    {ExitCode::Unanswered, "unanswered",
     "a question without --yes and nobody to answer it; nothing was done"},
    {ExitCode::NoCommunication, "no-communication",
     "the port could not be opened, or the line failed"},
    {ExitCode::Different, "different", "board and disk do not hold the same"},
    {ExitCode::Files, "files", "a file of the program set is missing or cannot be used"},
    {ExitCode::Unproven, "unproven", "no difference found, yet some bytes cannot be read back"},
}};

constexpr int wordWidth = 18;
} // namespace

QString ExitWord(ExitCode code) {
    const auto* found =
        std::find_if(rows.begin(), rows.end(), [code](const Row& row) { return row.code == code; });
    return found == rows.end() ? QString() : QString::fromLatin1(found->word);
}

QString ExitCodeTable() {
    QString table = QStringLiteral("Exit codes:\n");
    for (const Row& row : rows)
        table += QStringLiteral("  %1 %2%3\n")
                     .arg(static_cast<int>(row.code))
                     .arg(QString::fromLatin1(row.word).leftJustified(wordWidth),
                          QString::fromLatin1(row.meaning));
    return table;
}
