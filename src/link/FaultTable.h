#pragma once

#include <QString>

/// Key of a code, 0 to 255, in the fault tables: upper-case hexadecimal of at least two digits.
QString FaultTableKey(qint16 code);

/// Appends the description that the table file at `path` holds for `key`, the first one where a
/// code stands twice; nothing where it has none, and "--- Fault File Not Found ---" where there
/// is no file. Each line of the file holds two comma-delimited items, code and description; an
/// empty line at its end is passed over.
/// Raises as TextReader, with `text` as far as it had come.
void AppendFaultText(QString& text, const QString& key, const QString& path);
