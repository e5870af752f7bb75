#pragma once

#include "base/Dialogs.h"

class FileSystem;

/// The file dialog for .hdn files, starting at `path`: its folder with its name, or a blank name
/// in `otherwise` if there is no such file.
FileDialogRequest ProgramFileDialog(const FileSystem& files, const QString& path,
                                    const QString& otherwise);
