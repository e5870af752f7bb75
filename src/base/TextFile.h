#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

/// Reading of the system's text files: Windows-1252 bytes, lines ended by CR LF or by LF alone.
/// The path is looked up whatever the letter case of its name on disk. Every operation raises a
/// RunTimeError when the file fails: 53 not found, 76 folder not found, 70 permission denied,
/// 75 no plain file, 57 device error, 7 a file of more than 64 MiB or an item of more than 16
/// million characters: far more than any file of the system holds, and what a reader makes of it
/// would fill the memory.
class TextReader {
public:
    /// Opens the file.
    explicit TextReader(const QString& path);

    /// True when nothing is left to read; true at once for an empty file.
    bool AtEnd();
    /// One text item: blanks at its start are skipped; it goes up to a comma or a line end, which
    /// is taken too; blanks at its end are dropped; a text in double quotes is one item without
    /// them. An empty line gives an empty item. Raises 62 at the end of the file.
    QString InputItem();
    /// A whole line without its end. Raises 62 at the end of the file.
    QString LineInput();

private:
    bool Next(char& byte);
    char Peek();
    void SkipLineEnd(char first);
    void SkipBlanks();
    void SkipToDelimiter();
    QString QuotedItem();
    void Append(QByteArray& item, char byte);

    QFile file_;
    qint64 end_ = 0; // bytes that the file had when it was opened: what another program adds
                     // meanwhile would tear a line in two
};

/// First comma-delimited item of a line, by the rules of TextReader::InputItem.
QString FirstItem(const QString& line);

/// Writing of a text file. Nothing touches the disk before Close, which writes the whole file or
/// leaves the old one; without Close nothing is written at all.
class TextWriter {
public:
    explicit TextWriter(QString path);

    /// A text line write: the text, CR LF.
    void PrintText(const QString& text);
    /// A number line write: a blank (a minus sign for a negative number), the digits, a blank,
    /// CR LF: " 49 ".
    void PrintNumber(qint64 number);
    /// Raw text without a line end.
    void Write(const QString& text);
    /// Puts the file in place. Raises as WriteWholeFile.
    void Close();

private:
    QString path_;
    QByteArray bytes_;
};

/// Writes `bytes` to a temporary file beside `path` and renames it over the old file when it is
/// whole on disk. An existing file keeps the case of its name. Raises 76 if the folder does not
/// exist, 75 if file or folder cannot be written, 61 if the disk is full; the old file then stays.
void WriteWholeFile(const QString& path, const QByteArray& bytes);

/// The number as a number line write prints it, without the line end: " 49 ", "-3 ".
QString PrintedNumber(qint64 number);
