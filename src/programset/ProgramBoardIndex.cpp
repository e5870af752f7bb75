#include "programset/ProgramBoardIndex.h"

#include "base/CharacterSet.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "link/TargetBoards.h"

qint16 ProgramBoardIndex(const QString& path) {
    const QString hdnFile = ChangeExtension(path, QStringLiteral("HDN"));
    if (!FileSystem().FileExists(hdnFile))
        return BoardIndex::Default;
    TextReader file(hdnFile);
    if (file.AtEnd())
        return BoardIndex::Default;
    const QString item = file.InputItem();
    if (item.isEmpty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return CodeOfCharacter(item.front());
}
