#include "base/DoEvents.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/StagedSet.h"
#include "link/TargetBoards.h"
#include "link/TransferProgress.h"
#include "session/Globals.h"
#include <QFileInfo>
#include <QTimer>

namespace {
// Shows how far a transfer of the link is, each time the link lets events run, which it does
// between records and never inside an exchange. An upload only reads the board, so it may be cut
// short; a dump may not: the board would be left in program mode.
class TransferWatch {
public:
    TransferWatch(CommandContext& context, qint16 mode)
        : context_(context), mode_(mode), text_(TransferTextAtStart(mode)) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
        timer_.start(0);
    }

private:
    void Look() {
        RSComm& link = context_.Link();
        if (mode_ == TransferMode::Upload && context_.Interrupted())
            link.SetCommError(true);
        const TransferProgress progress{link.InProgramMode(), link.WritingIdent(),
                                        link.InUploadMode(), link.ReadingIdent(),
                                        link.CurrentProgramAdd()};
        text_ = TransferText(mode_, progress, text_);
        context_.Platform().console.ShowProgress(text_);
    }

    CommandContext& context_;
    const qint16 mode_;
    QString text_;
    QTimer timer_;
};

Outcome WithSet(Outcome outcome) {
    outcome.result.insert(QStringLiteral("set"), gHdnFile);
    return outcome;
}

// The link ends a transfer with a box of its own, and only that of a whole transfer is a proof.
std::optional<Outcome> UnlessComplete(CommandContext& context, const QString& completeText) {
    const bool complete = context.Prompts().TakeReport(completeText);
    if (auto failure = context.Failure())
        return failure;
    if (!complete || !context.Link().OnlineMode())
        return Ended(ExitCode::Failed, QStringLiteral("The transfer is not complete."));
    return std::nullopt;
}

std::optional<Outcome> CheckForDump(CommandContext& context) {
    context.Link().DownloadFile(gHdnFile);
    const QString report = context.Prompts().Report();
    if (!report.isEmpty() || !context.Link().ValidProgram())
        return Ended(ExitCode::Files,
                     report.isEmpty() ? QStringLiteral("%1 is not valid.").arg(gHdnFile) : report);
    return std::nullopt;
}

bool HasImage(qint16 model) {
    const TargetBoard* board = FindTargetBoard(model);
    return board && board->imageLength > 0;
}
} // namespace

Outcome DumpCommand(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return *failure;
    if (auto failure = CheckForDump(context))
        return WithSet(*failure);
    if (auto failure = context.GoOnline())
        return WithSet(*failure);
    {
        const TransferWatch watch(context, TransferMode::Dump);
        context.Link().DumpProgram();
    }
    if (context.Prompts().Declined())
        return WithSet(
            Ended(ExitCode::Cancelled, QStringLiteral("Not confirmed; nothing was written.")));
    if (auto failure = UnlessComplete(context, QStringLiteral("Program Download Complete!")))
        return WithSet(*failure);
    Outcome outcome = WithSet({});
    outcome.lines += QStringLiteral("%1 is in the board.").arg(QFileInfo(gHdnFile).fileName());
    return outcome;
}

Outcome UploadCommand(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return *failure;
    if (!HasImage(context.Model()))
        return WithSet(Ended(ExitCode::Files, QStringLiteral("A %1 has no program to upload.")
                                                  .arg(TargetboardName(context.Model()))));
    if (auto failure = context.Ask(
            QStringLiteral("You are about to upload the PLC Program\r\nfrom the %1.\r\n\r\n"
                           "Do you wish to continue?")
                .arg(TargetboardName(context.Model())),
            QStringLiteral("Program Upload [%1]").arg(QFileInfo(gHdnFile).completeBaseName())))
        return WithSet(*failure);
    const StagedSet staged(gHdnFile, {QStringLiteral("hdn")});
    if (auto failure = context.GoOnline())
        return WithSet(*failure);
    context.Link().UploadFile(staged.Path(QStringLiteral("hdn")));
    context.Link().SetInUploadMode(true);
    {
        const TransferWatch watch(context, TransferMode::Upload);
        context.Link().UploadProgram();
    }
    if (auto failure = UnlessComplete(context, QStringLiteral("Program Upload Complete!"))) {
        const auto interruption = context.FailureOrInterruption();
        return WithSet(interruption ? *interruption : *failure);
    }
    staged.Keep({QStringLiteral("rev"), QStringLiteral("lcf"), QStringLiteral("hex")});
    Outcome outcome = WithSet({});
    outcome.lines +=
        QStringLiteral("%1 holds the program of the board.").arg(QFileInfo(gHdnFile).fileName());
    return outcome;
}
