#pragma once

#include <optional>
#include <QString>

/// Description that the code file at `path` holds for a code text, letter case apart. Each line of
/// the file holds two comma-delimited items, code and description. Unlike the link's own look-up
/// the whole file is read and a later equal pair wins, so that a plant can append its own texts.
/// Nothing if there is no file or no such code. Raises 62 if the file ends after a code, and as
/// TextReader for a file that cannot be read.
std::optional<QString> DescriptionInCodeFile(const QString& path, const QString& code);
