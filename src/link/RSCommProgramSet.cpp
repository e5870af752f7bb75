#include "base/CharacterSet.h"
#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"

namespace {
constexpr qsizetype extensionLength = 3;

// The first item of a text file, or nothing if it is empty.
std::optional<QString> FirstItemOfFile(const QString& path) {
    TextReader file(path);
    if (file.AtEnd())
        return std::nullopt;
    return file.InputItem();
}
} // namespace

void RSComm::SetProgramIdent(const QString& revFile) {
    validProgram_ = false;
    program_ = ProgramIdent();
    try {
        if (!FileSystem().FileExists(revFile))
            return;
        const std::optional<QString> line = FirstItemOfFile(revFile);
        if (!line)
            return;
        program_ = ParseRevLine(*line);
        validProgram_ = true;
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm-Set Program Ident"),
                     MsgStyle::Information);
    }
}

void RSComm::SetProgramConfig(const QString& lcfFile) {
    validProgram_ = false;
    config_ = ProgramConfig();
    try {
        if (!FileSystem().FileExists(lcfFile))
            return;
        const std::optional<QString> line = FirstItemOfFile(lcfFile);
        if (!line)
            return;
        config_ = ParseLcfLine(*line);
        validProgram_ = true;
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm-Set Program Config"),
                     MsgStyle::Information);
    }
}

void RSComm::NameProgramSet(const QString& hdnFile) {
    const QString base = hdnFile.chopped(extensionLength);
    hdnPath_ = base + QLatin1String("hdn");
    revPath_ = base + QLatin1String("rev");
    hexPath_ = base + QLatin1String("hex");
    lcfPath_ = base + QLatin1String("lcf");
}

// The first character of the .hdn file is the model; false for an empty file.
bool RSComm::ReadBoardIndex(const QString& hdnFile) {
    const std::optional<QString> line = FirstItemOfFile(hdnFile);
    if (!line)
        return false;
    if (line->isEmpty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    boardIndex_ = CodeOfCharacter(line->front());
    boardName_ = TargetboardName(boardIndex_);
    return true;
}

void RSComm::DownloadFile(const QString& HDN_FileName) {
    validProgram_ = false;
    try {
        if (!FileSystem().FileExists(HDN_FileName))
            return;
        NameProgramSet(HDN_FileName);
        if (ReadBoardIndex(HDN_FileName))
            CheckProgramSet(HDN_FileName);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm-Download File"),
                     MsgStyle::Information);
    }
}

void RSComm::CheckProgramSet(const QString& hdnFile) {
    const TargetBoard* board = FindTargetBoard(boardIndex_);
    const QString baseName = FileSystem().GetBaseName(hdnFile);
    switch (board ? board->dump : DumpRoute::Refused) {
    case DumpRoute::Program:
        CheckProgramFiles();
        break;
    case DumpRoute::PLS:
        dialogs_.MsgBox(baseName + QLatin1String(" file is a PLS target board program.\r\n"
                                                 "Open PLS program to download to target board."
                                                 "\r\n\r\nProgram Downloaded Halted."),
                        MsgStyle::Information, QStringLiteral("PLS Program Download"));
        break;
    case DumpRoute::Refused:
        dialogs_.MsgBox(baseName + QLatin1String(" file is incompatible with target board."
                                                 "\r\n\r\nProgram Downloaded Halted!"),
                        MsgStyle::Critical, QStringLiteral("Program Download"));
        break;
    }
}

// For a board with configuration bytes the .LCF file decides alone: a set without a good .REV
// file may go out under an unknown ident, which the user has been told.
void RSComm::CheckProgramFiles() {
    SetProgramIdent(revPath_);
    if (!validProgram_)
        RefuseProgramFile(revPath_ + QLatin1String(" Revision File is Not Valid"));
    if (!HasConfigurationBytes(boardIndex_))
        return;
    SetProgramConfig(lcfPath_);
    if (!validProgram_)
        RefuseProgramFile(lcfPath_ + QLatin1String(" Configuration File is Not Valid"));
}

void RSComm::RefuseProgramFile(const QString& reason) {
    dialogs_.MsgBox(reason + QLatin1String("\r\n\r\nProgram Downloaded Halted!"),
                    MsgStyle::Exclamation, QStringLiteral("Program Download"));
}

// A name that leads nowhere forgets the set named before: an upload must not land in that one.
void RSComm::UploadFile(const QString& HDN_FileName) {
    hdnPath_ = revPath_ = hexPath_ = lcfPath_ = QString();
    try {
        if (!FileSystem().FileExists(HDN_FileName))
            return;
        NameProgramSet(HDN_FileName);
        ReadBoardIndex(HDN_FileName);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("RSComm UploadFile"), MsgStyle::Information);
    }
}
