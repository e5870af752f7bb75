#include "programset/ToolCommand.h"

#include "base/FileSystem.h"
#include "base/ProcessStart.h"
#include "link/TargetBoards.h"
#include "programset/ShortName.h"
#include <QDir>

namespace {
constexpr qsizetype extensionLength = 4; // ".HDN"
constexpr qint16 lastLimitSwitch = 69;   // has a development tool of its own
constexpr qint16 notDefined = 57;

QString ToolOf(qint16 boardIndex) {
    if (!FindTargetBoard(boardIndex) || boardIndex == notDefined)
        return QString();
    if (boardIndex == lastLimitSwitch)
        return QStringLiteral("lmt51/limtool45.exe");
    if (IsPLSBoard(boardIndex))
        return QStringLiteral("lmt51/limtool.exe");
    return MemoryClass(boardIndex) == 'B' ? QStringLiteral("tgt96/pgmsetup.exe")
                                          : QStringLiteral("tgt51/pgmsetup1.exe");
}
} // namespace

QString ToolCommand(const QString& applicationFolder, qint16 boardIndex, const QString& stem) {
    const QString tool = ToolOf(boardIndex);
    if (tool.isEmpty())
        return QString();
    const QString argument =
        IsPLSBoard(boardIndex) ? stem : stem + u'=' + LCFBoardIndex(boardIndex);
    const QString program = FileSystem().BuildPath(applicationFolder, tool);
    return CommandWord(QDir::toNativeSeparators(program)) + u' ' +
           CommandWord(QDir::toNativeSeparators(argument));
}

QString ToolStem(const QString& hdnFile) {
    const FileSystem files;
    const QString folder = ShortFolderPath(files.GetParentFolderName(hdnFile));
    return files.BuildPath(folder, files.GetFileName(hdnFile).chopped(extensionLength));
}
