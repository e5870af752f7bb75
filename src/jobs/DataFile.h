#pragma once

#include <QString>
#include <QStringList>

class FileSystem;

/// The data file of a program set (.LDT): one line, the image of the board's data bytes, two
/// MarkHex characters a byte in ascending address order, high digit first. A line may end early.

/// The first `most` pairs of the file as hexadecimal text ("12", "AB"), in file order; fewer if
/// the line ends early, none if the file does not exist or is empty. A last digit without its
/// partner is no pair. Pairs are given as they stand, hexadecimal or not. Raises as TextReader.
QStringList ReadDataPairs(const FileSystem& files, const QString& path, qsizetype most);

/// Writes the line made of these pairs of hexadecimal text. Raises as TextWriter.
void WriteDataPairs(const QString& path, const QStringList& pairs);
