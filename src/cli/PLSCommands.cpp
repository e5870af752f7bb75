#include "base/modUtility.h"
#include "base/TextFile.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "link/TargetBoards.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSJobs.h"
#include "pls/ReadPLSFileData.h"
#include "session/Globals.h"
#include <QFileInfo>

namespace {
QString PCFFile() {
    return ChangeExtension(gHdnFile, QStringLiteral("PCF"));
}

QString CHLFile() {
    return ChangeExtension(gHdnFile, QStringLiteral("CHL"));
}

std::optional<Outcome> TakePLSSet(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return failure;
    if (!IsPLSBoard(context.Model()))
        return Ended(ExitCode::Files,
                     QStringLiteral("%1 is no set of a limit switch board.").arg(gHdnFile));
    return std::nullopt;
}

std::optional<Outcome> ReadFiles(CommandContext& context) {
    if (ReadPLSFileData(gHdnFile, context.Prompts()))
        return std::nullopt;
    return Ended(ExitCode::Files, context.Prompts().Report());
}

std::optional<Outcome> Confirm(CommandContext& context, const QString& message,
                               const QString& title) {
    return context.Ask(
        message.arg(TargetboardName(context.Model())),
        QStringLiteral("%1 [%2]").arg(title, QFileInfo(gHdnFile).completeBaseName()));
}

void WriteTextFile(const QString& path, const QString& text) {
    TextWriter file(path);
    file.PrintText(text);
    file.Close();
}

Outcome Moved(const QString& line) {
    Outcome outcome;
    outcome.result = {{QStringLiteral("set"), gHdnFile},
                      {QStringLiteral("channels"), gPLS.Channels},
                      {QStringLiteral("scaleFactor"), gPLS.ScaleFactor}};
    outcome.lines += line.arg(gPLS.Channels);
    return outcome;
}

Outcome Incomplete() {
    return Ended(ExitCode::Failed, QStringLiteral("The transfer is not complete."));
}
} // namespace

// Presets would take the place of a file that is missing, and clear the board's channels.
Outcome PLSDownloadCommand(CommandContext& context) {
    if (auto failure = TakePLSSet(context))
        return *failure;
    for (const QString& file : {PCFFile(), CHLFile()})
        if (!FileSystem().FileExists(file))
            return Ended(ExitCode::Files, QStringLiteral("%1 does not exist.").arg(file));
    if (auto failure = ReadFiles(context))
        return *failure;
    if (auto failure = Confirm(context,
                               QStringLiteral("You are about to download the PLS configuration\r\n"
                                              "and timing channel setpoints to the %1.\r\n\r\n"
                                              "Do you wish to continue?"),
                               QStringLiteral("PLS Download")))
        return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    gPLSSnapshot = PLSRecord(); // the job makes it alike when all has been sent
    PLSJobs(context.Link(), context.Prompts()).DownloadPLSChannels(context.Progress());
    if (auto failure = context.Failure())
        return *failure;
    if (!(gPLSSnapshot == gPLS))
        return Incomplete();
    return Moved(QStringLiteral("%1 channels are in the board."));
}

Outcome PLSUploadCommand(CommandContext& context) {
    if (auto failure = TakePLSSet(context))
        return *failure;
    if (auto failure = Confirm(context,
                               QStringLiteral("You are about to upload the PLS configuration\r\n"
                                              "and timing channel setpoints from the %1.\r\n\r\n"
                                              "All data will be saved to file.\r\n\r\n"
                                              "Do you wish to continue?"),
                               QStringLiteral("PLS Upload")))
        return *failure;
    if (auto failure = ReadFiles(context)) // for the labels of the channels
        return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    PLSJobs(context.Link(), context.Prompts()).UploadPLSChannels(context.Progress());
    if (auto failure = context.Failure())
        return *failure;
    if (gPLS.PCFText.isEmpty() || !gPLS.CHLText.endsWith(chlEndLine))
        return Incomplete();
    WriteTextFile(PCFFile(), gPLS.PCFText);
    WriteTextFile(CHLFile(), gPLS.CHLText);
    return Moved(QStringLiteral("%1 channels are in the files."));
}
