#include "statustable/TableFile.h"

#include "base/FileSystem.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include <algorithm>

namespace {
constexpr qsizetype shortestTablePath = 5; // a shorter one cannot name a .tbl file
const QString extension = QStringLiteral(".tbl");

void ReadAddresses(TextReader& reader, TableFile& table) {
    while (!reader.AtEnd()) {
        const QString address = reader.InputItem();
        if (table.addresses.size() == TableFile::rowLimit) {
            table.limitReached = true;
            return;
        }
        table.addresses += address;
    }
}

qsizetype FilledLength(const QStringList& addresses) {
    qsizetype length = addresses.size();
    while (length > 0 && addresses[length - 1].isEmpty())
        --length;
    return length;
}
} // namespace

TableFileState ReadTableFile(const QString& path, TableFile& table) {
    if (!FileSystem().FileExists(path))
        return TableFileState::Missing;
    TextReader reader(path);
    if (reader.AtEnd())
        return TableFileState::Empty;
    table.board = ToInteger16(WholeNumberValue(reader.InputItem()));
    ReadAddresses(reader, table);
    // The closing empty line stands for the append row. A file made by hand may lack it.
    if (!table.limitReached && !table.addresses.isEmpty() && table.addresses.last().isEmpty())
        table.addresses.removeLast();
    return TableFileState::Read;
}

void WriteTableFile(const QString& path, qint16 board, const QStringList& addresses) {
    TextWriter writer(path);
    writer.PrintNumber(board);
    for (const QString& address : addresses)
        writer.PrintText(address);
    writer.PrintText(QString()); // the append row
    writer.Close();
}

bool AddressesChanged(const QStringList& column1, const QStringList& saved) {
    const qsizetype common = std::min(column1.size(), saved.size());
    return !std::equal(column1.begin(), column1.begin() + common, saved.begin());
}

bool UnsavedWork(const QStringList& column1, const QStringList& saved) {
    const qsizetype length = FilledLength(column1);
    return length != FilledLength(saved) ||
           !std::equal(column1.begin(), column1.begin() + length, saved.begin());
}

QString SaveDialogName(const QString& tablePath, bool untitled) {
    if (tablePath.size() < shortestTablePath)
        return QString();
    if (!untitled)
        return tablePath;
    return tablePath.left(tablePath.lastIndexOf(u'/') + 1) + u'*' + extension;
}

QString TableTitle(const QString& path) {
    const QString name = FileSystem().GetFileName(path);
    return name.endsWith(extension, Qt::CaseInsensitive) ? name.chopped(extension.size()) : name;
}
