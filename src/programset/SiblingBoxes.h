#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

/// Texts of the boxes that a double-click on a sibling in the browser's tree shows.

/// The record of a .REV file in clear: program ident, revision and checksum.
struct RevisionRecord {
    QString ident;
    QString revision; ///< decimal, 0 to 255
    QString checksum; ///< decimal, 0 to 255
};

/// Takes a record apart: all but the last four characters are the ident, the next two the
/// checksum and the last two the revision, both as MarkHex digits. An empty record leaves all
/// fields empty. Raises 5 for one of one to three characters.
RevisionRecord DecodeRevisionRecord(const QString& record);
/// Reads the first item of a .REV file and decodes it; an empty file leaves all fields empty.
/// Raises as TextReader and DecodeRevisionRecord.
RevisionRecord ReadRevisionRecord(const QString& revFile);
/// Three lines, each after a tab, parted by CR LF.
QString RevisionText(const RevisionRecord& record);

/// What the box of an image file tells.
struct FileData {
    QDateTime created;
    QDateTime lastAccessed;
    qint64 size = 0; ///< bytes
};

/// Facts of a file. A file system that keeps no creation date gives the date of the last change.
/// Raises 53 if the file does not exist.
FileData ReadFileData(const QString& path);
/// Three lines, each after a tab, parted by CR LF. The size is in thousands of bytes with one
/// decimal and a point, halves rounded up: 1250 is "1.3 KB".
QString FileDataText(const FileData& data, const QLocale& locale = QLocale::system());

/// Date and time in the short form of the locale, with four digits of the year and with seconds:
/// "3/14/2001 2:05:09 PM". A time of midnight is left out.
QString GeneralDate(const QDateTime& moment, const QLocale& locale = QLocale::system());
