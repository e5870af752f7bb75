#pragma once

#include "base/Dialogs.h"

class FileSystem;

/// The file dialog for .hdn files, starting at `path`: its folder with its name, or a blank name
/// in `otherwise` if there is no such file. The flags are 528388: explorer style, the file must
/// exist, no read-only box.
FileDialogRequest ProgramFileDialog(const FileSystem& files, const QString& path,
                                    const QString& otherwise);
