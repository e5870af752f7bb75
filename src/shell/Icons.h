#pragma once

#include <QIcon>

/// An icon of the main window by name: a toolbar key ("Program"), "Folder", "FolderOpen" or
/// "TreeImage1" to "TreeImage3". Drawn in mid tones, so that it is legible on light and on dark
/// grounds; faded while disabled.
QIcon ShellIcon(const QString& name);

/// The program's own icon, of its windows; up to 24 pixels a drawing with fewer lines.
QIcon ProgramIcon();

/// An icon as that of ShellIcon, for rows of lists and trees: in a selected row it takes the colour
/// of the row's text.
QIcon ListIcon(const QString& name);
