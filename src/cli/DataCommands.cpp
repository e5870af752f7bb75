#include "base/modUtility.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/StagedSet.h"
#include "jobs/DataFile.h"
#include "jobs/DataImage.h"
#include "jobs/DataTransfer.h"
#include "jobs/TransferRange.h"
#include "link/TargetBoards.h"
#include "session/Globals.h"
#include <algorithm>
#include <QFileInfo>

namespace {
QString DataExtension() {
    return QStringLiteral("ldt");
}

// The range of the command line within the model's data memory, as the input of the job.
std::optional<Outcome> TakeRange(CommandContext& context) {
    if (IsPLSBoard(context.Model()))
        return Ended(ExitCode::Files,
                     QStringLiteral("A limit switch board has no data: see pls-download and "
                                    "pls-upload."));
    const AddressRange limits = DataImageOf(context.Model()).standard;
    gXferFrom = context.Given().from.value_or(limits.first);
    gXferTo = context.Given().to.value_or(limits.last);
    if (gXferFrom < limits.first || gXferTo > limits.last || gXferFrom > gXferTo)
        return Ended(ExitCode::Usage, QStringLiteral("The data of a %1 stand at %2 to %3.")
                                          .arg(TargetboardName(context.Model()))
                                          .arg(limits.first)
                                          .arg(limits.last));
    gXferBoard = context.Model();
    return std::nullopt;
}

bool IsHexPair(const QString& pair) {
    bool isHex = false;
    pair.toInt(&isHex, 16);
    return isHex;
}

// A job takes a byte that the file does not hold for 0. In a script nobody would see that half of
// the machine's data went to 0, so such a file is refused.
std::optional<Outcome> CheckDataFile(const CommandContext& context, const QString& path) {
    const DataImage& image = DataImageOf(context.Model());
    const int first = image.pairsByAddress ? image.file.first : gXferFrom;
    const int needed = gXferTo - first + 1;
    const QStringList pairs = ReadDataPairs(FileSystem(), path, needed);
    if (pairs.size() < needed)
        return Ended(ExitCode::Files, QStringLiteral("%1 holds %2 bytes of the %3 that are needed.")
                                          .arg(path)
                                          .arg(pairs.size())
                                          .arg(needed));
    if (!std::all_of(pairs.begin(), pairs.end(), IsHexPair))
        return Ended(ExitCode::Files, QStringLiteral("%1 holds what is no data.").arg(path));
    return std::nullopt;
}

std::optional<Outcome> RunTransfer(CommandContext& context, qint16 mode, const QString& file) {
    gXferMode = mode;
    gXferFile = file;
    const FileSystem files;
    DataTransfer(context.Link(), context.Prompts(), files).TransferData(context.Progress());
    return context.FailureOrInterruption();
}

std::optional<Outcome> Confirm(CommandContext& context, const QString& what,
                               const QString& consequence, const QString& title) {
    return context.Ask(
        QStringLiteral("You are about to %1 the %2.\r\n\r\n%3\r\n\r\nDo you wish to continue?")
            .arg(what, TargetboardName(context.Model()), consequence),
        QStringLiteral("%1 [%2]").arg(title, QFileInfo(gHdnFile).completeBaseName()));
}

Outcome Moved(const QString& line) {
    Outcome outcome;
    outcome.result = {{QStringLiteral("set"), gHdnFile},
                      {QStringLiteral("from"), gXferFrom},
                      {QStringLiteral("to"), gXferTo}};
    outcome.lines += line.arg(gXferFrom).arg(gXferTo);
    return outcome;
}
} // namespace

Outcome DataDownloadCommand(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return *failure;
    if (auto failure = TakeRange(context))
        return *failure;
    const QString file = ChangeExtension(gHdnFile, DataExtension());
    if (auto failure = CheckDataFile(context, file))
        return *failure;
    if (auto failure = Confirm(context, QStringLiteral("download data to"),
                               QStringLiteral("File data will be written to memory."),
                               QStringLiteral("Data Download")))
        return *failure;
    if (auto failure = context.GoOnline())
        return *failure;
    if (auto failure = RunTransfer(context, XferMode::Download, file))
        return *failure;
    return Moved(QStringLiteral("B%1 to B%2 are in the board."));
}

Outcome DataUploadCommand(CommandContext& context) {
    if (auto failure = context.TakeSet())
        return *failure;
    if (auto failure = TakeRange(context))
        return *failure;
    if (auto failure = Confirm(context, QStringLiteral("upload data from"),
                               QStringLiteral("File data will be saved from memory."),
                               QStringLiteral("Data Upload")))
        return *failure;
    const StagedSet staged(gHdnFile, {DataExtension()});
    if (auto failure = context.GoOnline())
        return *failure;
    if (auto failure = RunTransfer(context, XferMode::Upload, staged.Path(DataExtension())))
        return *failure;
    staged.Keep({DataExtension()});
    return Moved(QStringLiteral("B%1 to B%2 are in the data file."));
}
