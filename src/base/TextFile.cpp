#include "base/TextFile.h"

#include "base/CharacterSet.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/SystemCalls.h"
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <utility>

namespace {
constexpr qsizetype longestItem = 16 * 1024 * 1024; // characters; no file of the system comes near
constexpr qint64 longestFile = 64 * 1024 * 1024;    // bytes; likewise

bool IsLineEnd(char byte) {
    return byte == '\r' || byte == '\n';
}

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t';
}

QByteArray WithoutBlanksAtEnd(QByteArray item) {
    while (!item.isEmpty() && IsBlank(item.back()))
        item.chop(1);
    return item;
}

// Reading a pipe or a device would block for ever: only plain files pass.
void RefuseUnreadable(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw RunTimeError(info.dir().exists() ? ErrorNumber::FileNotFound
                                               : ErrorNumber::PathNotFound);
    if (!info.isFile())
        throw RunTimeError(ErrorNumber::PathFileAccess);
}
} // namespace

TextReader::TextReader(const QString& path) : file_(OnDisk(path)) {
    RefuseUnreadable(file_.fileName());
    if (!file_.open(QIODevice::ReadOnly))
        throw RunTimeError(ErrorNumber::PermissionDenied);
    if (file_.size() > longestFile)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    end_ = file_.size();
}

bool TextReader::AtEnd() {
    return file_.pos() >= end_ || file_.atEnd();
}

bool TextReader::Next(char& byte) {
    if (file_.pos() >= end_)
        return false;
    if (file_.getChar(&byte))
        return true;
    if (file_.error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::DeviceIOError);
    return false;
}

char TextReader::Peek() {
    char byte = '\0';
    return file_.pos() < end_ && file_.peek(&byte, 1) == 1 ? byte : '\0';
}

// Takes the LF that belongs to a CR.
void TextReader::SkipLineEnd(char first) {
    char second = '\0';
    if (first == '\r' && Peek() == '\n')
        Next(second);
}

void TextReader::SkipBlanks() {
    char blank = '\0';
    while (IsBlank(Peek()) && Next(blank)) {
    }
}

void TextReader::SkipToDelimiter() {
    char byte = '\0';
    while (Next(byte)) {
        if (byte == ',')
            return;
        if (IsLineEnd(byte)) {
            SkipLineEnd(byte);
            return;
        }
    }
}

void TextReader::Append(QByteArray& item, char byte) {
    if (item.size() >= longestItem)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    item.append(byte);
}

QString TextReader::QuotedItem() {
    QByteArray item;
    char byte = '\0';
    Next(byte); // the opening quote
    while (Next(byte) && byte != '"')
        Append(item, byte);
    SkipToDelimiter();
    return FromWindows1252(item);
}

QString TextReader::InputItem() {
    if (AtEnd())
        throw RunTimeError(ErrorNumber::InputPastEndOfFile);
    SkipBlanks();
    if (Peek() == '"')
        return QuotedItem();
    QByteArray item;
    char byte = '\0';
    while (Next(byte)) {
        if (byte == ',')
            break;
        if (IsLineEnd(byte)) {
            SkipLineEnd(byte);
            break;
        }
        Append(item, byte);
    }
    return FromWindows1252(WithoutBlanksAtEnd(item));
}

QString TextReader::LineInput() {
    if (AtEnd())
        throw RunTimeError(ErrorNumber::InputPastEndOfFile);
    QByteArray line;
    char byte = '\0';
    while (Next(byte)) {
        if (IsLineEnd(byte)) {
            SkipLineEnd(byte);
            break;
        }
        Append(line, byte);
    }
    return FromWindows1252(line);
}

QString FirstItem(const QString& line) {
    qsizetype start = 0;
    while (start < line.size() && (line[start] == u' ' || line[start] == u'\t'))
        ++start;
    if (start < line.size() && line[start] == u'"') {
        const qsizetype close = line.indexOf(u'"', start + 1);
        return line.mid(start + 1, (close < 0 ? line.size() : close) - start - 1);
    }
    const qsizetype comma = line.indexOf(u',', start);
    qsizetype end = comma < 0 ? line.size() : comma;
    while (end > start && (line[end - 1] == u' ' || line[end - 1] == u'\t'))
        --end;
    return line.mid(start, end - start);
}

TextWriter::TextWriter(QString path) : path_(std::move(path)) {}

void TextWriter::PrintText(const QString& text) {
    bytes_ += ToWindows1252(text) + "\r\n";
}

void TextWriter::PrintNumber(qint64 number) {
    PrintText(PrintedNumber(number));
}

void TextWriter::Write(const QString& text) {
    bytes_ += ToWindows1252(text);
}

void TextWriter::Close() {
    WriteWholeFile(path_, bytes_);
}

void WriteWholeFile(const QString& path, const QByteArray& bytes) {
    const QString target = OnDisk(path);
    const QFileInfo info(target);
    if (!info.dir().exists())
        throw RunTimeError(ErrorNumber::PathNotFound);
    if (info.exists() && (!info.isFile() || !info.isWritable()))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    const bool written = file.write(bytes) == bytes.size() && FlushToDisk(file);
    if (!written || !file.commit())
        throw RunTimeError(file.error() == QFileDevice::PermissionsError
                               ? ErrorNumber::PathFileAccess
                               : ErrorNumber::DiskFull);
}

QString PrintedNumber(qint64 number) {
    return (number < 0 ? QString() : QStringLiteral(" ")) + QString::number(number) + u' ';
}
