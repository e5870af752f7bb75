#pragma once

#include <QString>
#include <QStringList>

/// What a .tbl file holds: the board index as a number line, then one address a line, an empty
/// line for an empty row, and the empty line of the append row at the end.
struct TableFile {
    /// Most address lines that are read from a file.
    static constexpr int rowLimit = 32767;

    qint16 board = 0;          ///< 0 for a table of no board
    QStringList addresses;     ///< one entry a line of the file, without the closing empty line
    bool limitReached = false; ///< the file holds more lines than rowLimit; the rest was not read
};

/// How an attempt to read a table file ended.
enum class TableFileState { Missing, Empty, Read };

/// Reads the table file at `path` whole before anything is changed. Raises as TextReader, and
/// Overflow (6) for a board index beyond 16 bits.
TableFileState ReadTableFile(const QString& path, TableFile& table);

/// Writes the table file, whole or not at all. Raises as WriteWholeFile.
void WriteTableFile(const QString& path, qint16 board, const QStringList& addresses);

/// Whether column 1 differs from the address texts last read or written, binary. The comparison
/// stops at the end of the shorter of the two: rows added behind it are no change by themselves.
bool AddressesChanged(const QStringList& column1, const QStringList& saved);

/// Whether anything would be lost without a save: like AddressesChanged, but rows added or removed
/// at the end count too. Empty rows at the end do not, since they hold nothing.
bool UnsavedWork(const QStringList& column1, const QStringList& saved);

/// Name that the save dialog starts with: the table path; for an untitled table "*.tbl" in the
/// folder of the last table; empty when there was no table yet.
QString SaveDialogName(const QString& tablePath, bool untitled);

/// Title of a table file: its name without ".tbl".
QString TableTitle(const QString& path);
