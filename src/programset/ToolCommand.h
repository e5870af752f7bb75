#pragma once

#include <QString>

/// Command line of the suite's tool that sets up a new program: its configuration tool, or the
/// development tool of a limit switch board. Empty for an index without a tool.
///
/// `applicationFolder` is the root below which the tool folders stand; `stem` is what ToolStem
/// gives. A part that holds blanks is put in quotes, so that it stays one part.
QString ToolCommand(const QString& applicationFolder, qint16 boardIndex, const QString& stem);

/// Path of a new set as the tools take it: its folder in short form where the platform has one,
/// a separator unless that is a root folder, and the file's name without its last four characters.
QString ToolStem(const QString& hdnFile);
