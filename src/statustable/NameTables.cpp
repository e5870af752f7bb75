#include "statustable/NameTables.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "link/TargetBoards.h"
#include "statustable/TableAddress.h"

namespace {
constexpr int kinds = 2;

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

NameTable::NameTable(int highest, Bits bits)
    : highest_(highest), perNumber_(bits == Bits::Eight ? 9 : 1),
      texts_(static_cast<std::size_t>(kinds) * (highest + 1) * perNumber_) {}

void NameTable::Clear() {
    texts_.assign(texts_.size(), QString());
}

qint64 NameTable::PlaceOf(NameKind kind, qint64 number, int bitIndex) const {
    const int place = perNumber_ == 1 ? 0 : bitIndex;
    if (number < 0 || number > highest_ || place < 0 || place >= perNumber_)
        return -1;
    return (static_cast<int>(kind) * (highest_ + qint64(1)) + number) * perNumber_ + place;
}

void NameTable::Store(NameKind kind, qint64 number, int bitIndex, const QString& text) {
    const qint64 place = PlaceOf(kind, number, bitIndex);
    if (place < 0)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    texts_[place] = text;
}

QString NameTable::Entry(NameKind kind, qint64 number, int bitIndex) const {
    const qint64 place = PlaceOf(kind, number, bitIndex);
    return place < 0 ? QString() : texts_[place];
}

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
