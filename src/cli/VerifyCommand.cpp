#include "base/modUtility.h"
#include "base/NumberReader.h"
#include "base/TextFile.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/Verify.h"
#include "session/Globals.h"
#include <algorithm>

namespace {
QString Hex(int number, int digits) {
    return QString::number(number, 16).toUpper().rightJustified(digits, u'0') + u'H';
}

bool IsWhole(const HexImage& image) {
    return image.IsSendable() &&
           std::none_of(image.Lines().begin(), image.Lines().end(),
                        [](const HexLine& line) { return line.kind == HexLine::Kind::NoRecord; });
}

// What a dump of the set writes into the ident block; nothing where there is no .REV file.
std::optional<ProgramIdent> IdentOfSet() {
    const QString path = ChangeExtension(gHdnFile, QStringLiteral("rev"));
    if (!FileSystem().FileExists(path))
        return std::nullopt;
    TextReader file(path);
    return file.AtEnd() ? std::nullopt : std::optional(ParseRevLine(file.InputItem()));
}

VerifyReport ReadBack(CommandContext& context, const ExpectedMemory& expected) {
    TerminalProgress& progress = context.Progress();
    progress.SetRange(0, expected.Count());
    progress.ShowMessage(QStringLiteral("Comparing"));
    int reads = 0;
    return CompareMemory(expected, [&](int address) -> std::optional<int> {
        progress.Yield();
        if (context.FailureOrInterruption())
            return std::nullopt;
        const QString text = context.Link().RSRead(u'B' + QString::number(address));
        if (context.Failure())
            return std::nullopt;
        progress.SetValue(++reads);
        return static_cast<int>(WholeNumberValue(text));
    });
}

QString DifferenceText(const Difference& it) {
    return QStringLiteral("First difference at %1: %2 in the .HEX file, %3 in the board.")
        .arg(Hex(it.address, 4), Hex(it.expected, 2), Hex(it.found, 2));
}

QJsonObject ResultOf(const VerifyReport& report) {
    QJsonObject result{{QStringLiteral("set"), gHdnFile},
                       {QStringLiteral("compared"), report.compared},
                       {QStringLiteral("unreadable"), report.unreadable},
                       {QStringLiteral("differences"), report.differences}};
    if (report.first)
        result.insert(QStringLiteral("first"),
                      QJsonObject{{QStringLiteral("address"), report.first->address},
                                  {QStringLiteral("expected"), report.first->expected},
                                  {QStringLiteral("found"), report.first->found}});
    return result;
}

Outcome Judged(const VerifyReport& report) {
    Outcome outcome;
    outcome.result = ResultOf(report);
    outcome.lines += QStringLiteral("%1 bytes compared, %2 different.")
                         .arg(report.compared)
                         .arg(report.differences);
    if (report.first) {
        outcome.code = ExitCode::Different;
        outcome.reason = DifferenceText(*report.first);
    } else if (report.unreadable > 0) {
        outcome.code = ExitCode::Unproven;
        outcome.reason =
            QStringLiteral("%1 bytes from FF00H up cannot be read back.").arg(report.unreadable);
    }
    return outcome;
}
} // namespace

Outcome VerifyCommand(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return *failure;
    const QString path = ChangeExtension(gHdnFile, QStringLiteral("hex"));
    const HexImage image(path);
    const ExpectedMemory expected = MemoryOfImage(image, IdentOfSet());
    if (!IsWhole(image) || expected.Count() + expected.beyond == 0)
        return Ended(ExitCode::Files, QStringLiteral("%1 holds no valid image.").arg(path));
    if (auto failure = context.GoOnline())
        return *failure;
    const VerifyReport report = ReadBack(context, expected);
    if (report.whole)
        return Judged(report);
    Outcome outcome = Ended(ExitCode::Failed, QStringLiteral("The comparison did not end."));
    if (auto failure = context.FailureOrInterruption())
        outcome = *failure;
    outcome.result = ResultOf(report);
    return outcome;
}
