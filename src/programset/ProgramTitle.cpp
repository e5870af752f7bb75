#include "programset/ProgramTitle.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/Siblings.h"
#include "base/TextFile.h"

QString ReadProgramTitle(const QString& ltlFile) {
    TextReader file(ltlFile);
    return file.AtEnd() ? QString() : file.InputItem();
}

void WriteProgramTitle(const QString& ltlFile, const QString& title) {
    TextWriter file(ltlFile);
    file.PrintText(title);
    file.Close();
}

void EditProgramTitle(const QString& ltlFile, Dialogs& dialogs) {
    const QString present = ReadProgramTitle(ltlFile);
    const QString answer = dialogs.InputBox(QStringLiteral("Enter Program Title."),
                                            FileSystem().GetFileName(OnDisk(ltlFile)), present);
    if (!answer.isEmpty())
        WriteProgramTitle(ltlFile, answer);
}
