#include "statustable/NameTables.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "link/TargetBoards.h"
#include "statustable/TableAddress.h"

namespace {
const NameTable& TableOfPrefix(const NameTables& tables, QChar prefix) {
    switch (prefix.unicode()) {
    case u'F':
        return tables.gNicFlags;
    case u'X':
        return tables.gNicInputs;
    case u'Y':
        return tables.gNicOutputs;
    case u'I':
        return tables.gNicImage;
    default:
        return tables.gNicMemory;
    }
}

// Reads one of the two files; the user is told when it does not exist.
void LoadNameFile(const QString& path, NameKind kind, int width, NameTables& tables, bool& found,
                  Dialogs& dialogs) {
    found = FileSystem().FileExists(path);
    if (found)
        return ReadNameFile(path, kind, width, tables);
    const QString what =
        kind == NameKind::NicName ? QStringLiteral("NicName") : QStringLiteral("Descriptions");
    dialogs.MsgBox(QStringLiteral("Unable to Open %1 File,\r\nFile Does Not Exist.").arg(what),
                   MsgStyle::Information, QStringLiteral("File Error"));
}
} // namespace

void NameTables::Clear() {
    for (NameTable* table : {&gNicFlags, &gNicMemory, &gNicInputs, &gNicOutputs, &gNicImage})
        table->Clear();
}

int NameNumberWidth(qint16 tableBoard) {
    const bool large =
        tableBoard == 0 || tableBoard == BoardIndex::K2012 || tableBoard == BoardIndex::R6500PLC;
    return large ? 4 : 3;
}

NameFilesFound LoadNicNames(NameTables& tables, const QString& namPath, const QString& docPath,
                            qint16 tableBoard, Dialogs& dialogs) {
    tables.Clear();
    const int width = NameNumberWidth(tableBoard);
    NameFilesFound found;
    try {
        LoadNameFile(namPath, NameKind::NicName, width, tables, found.nicNames, dialogs);
        LoadNameFile(docPath, NameKind::Description, width, tables, found.descriptions, dialogs);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs, error, QStringLiteral("Load NicNames & Descriptions"),
                     MsgStyle::Information);
    }
    return found;
}

QString NameOfVariable(const NameTables& tables, const QString& address, NameKind kind) {
    if (address.size() < shortestAddress)
        return QString();
    const TableAddress split = SplitAddress(address);
    const int bitIndex = split.isBit ? split.Bit() + 1 : 0;
    return TableOfPrefix(tables, split.prefix).Entry(kind, split.WholeNumber(), bitIndex);
}
