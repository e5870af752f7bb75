#include "shell/ProgramFileDialog.h"

#include "base/FileSystem.h"

namespace {
// 528388: explorer style, the file must exist, no read-only box.
constexpr int openFlags = 0x80000 | DialogFlag::FileMustExist | 0x4;
} // namespace

FileDialogRequest ProgramFileDialog(const FileSystem& files, const QString& path,
                                    const QString& otherwise) {
    FileDialogRequest request;
    request.filter = QStringLiteral("Halden Files(*.hdn)|*.hdn|");
    request.flags = openFlags;
    if (files.FileExists(path)) {
        request.fileName = path;
        request.initDir = files.GetParentFolderName(path);
    } else {
        request.fileName = QStringLiteral(" ");
        request.initDir = otherwise;
    }
    return request;
}
