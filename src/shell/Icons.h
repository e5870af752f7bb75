#pragma once

#include <QIcon>

/// An icon of the main window by name: a toolbar key ("Program"), "Folder", "FolderOpen",
/// "TreeImage1" to "TreeImage3" or "Quentor". Drawn in mid tones, so that it is
/// legible on light and on dark grounds; faded while disabled.
QIcon ShellIcon(const QString& name);

/// The same for rows of lists and trees: in a selected row it takes the colour of the row's text.
QIcon ListIcon(const QString& name);
