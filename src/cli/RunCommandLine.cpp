#include "cli/RunCommandLine.h"

#include "base/RunTimeError.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include <QJsonDocument>

namespace {
// What a command raises comes from its files, but for what the line and the arithmetic raise.
ExitCode CodeOf(const RunTimeError& error) {
    switch (error.Number()) {
    case ErrorNumber::Overflow:
    case ErrorNumber::DeviceIOError:
    case ErrorNumber::SubscriptOutOfRange:
        return ExitCode::Failed;
    default:
        return ExitCode::Files;
    }
}

Outcome Run(const Command& command, CommandContext& context) {
    if (command.asks && !context.Prompts().MayBeAnswered())
        return Ended(ExitCode::Unanswered,
                     QStringLiteral("%1 asks before it writes, and nobody is there to answer: give "
                                    "--yes.")
                         .arg(context.Given().command));
    try {
        return command.run(context);
    } catch (const RunTimeError& error) {
        return Ended(CodeOf(error), OneLine(ErrorReportText(error)));
    }
}

void Show(const Outcome& outcome, const Arguments& arguments, Console& console) {
    if (!outcome.reason.isEmpty())
        console.Err(QStringLiteral("quentor-cli: ") + outcome.reason);
    if (!arguments.json) {
        if (!outcome.lines.isEmpty())
            console.Out(outcome.lines.join(u'\n'));
        return;
    }
    const QJsonObject object{{QStringLiteral("command"), arguments.command},
                             {QStringLiteral("outcome"), ExitWord(outcome.code)},
                             {QStringLiteral("exitCode"), static_cast<int>(outcome.code)},
                             {QStringLiteral("reason"), outcome.reason},
                             {QStringLiteral("result"), outcome.result}};
    console.Out(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}
} // namespace

int RunCommandLine(const QStringList& words, const CommandPlatform& platform) {
    const ParsedArguments parsed = ParseArguments(words);
    if (!parsed.text.isEmpty()) {
        platform.console.Out(parsed.text);
        return static_cast<int>(ExitCode::Done);
    }
    Outcome outcome = Ended(ExitCode::Usage, parsed.error);
    if (parsed.error.isEmpty()) {
        CommandContext context(platform, parsed.arguments);
        outcome = Run(*FindCommand(parsed.arguments.command), context);
    }
    Show(outcome, parsed.arguments, platform.console);
    return static_cast<int>(outcome.code);
}
