#pragma once

#include <QIcon>

/// An icon of the main window by name: a toolbar key ("Program"), "Folder", "FolderOpen", "Drive",
/// "ProgramFile", "TreeImage1" to "TreeImage3" or "Quentor". Drawn in mid tones, so that it is
/// legible on light and on dark grounds.
QIcon ShellIcon(const QString& name);
