#pragma once

#include <QString>

/// The folder that holds the support files, the help and the tool folders. All paths of the
/// system's own files are relative to it.
class ApplicationFolder {
public:
    /// A known folder, taken as it is.
    explicit ApplicationFolder(QString root);

    /// Finds the folder: that of the executable if it holds a "support" folder (a portable copy);
    /// otherwise `userFolder`, which is made and filled from `installedDefaults` where files are
    /// missing. A failure to fill is no error: the files are optional.
    static ApplicationFolder Locate(const QString& executableFolder, const QString& userFolder,
                                    const QString& installedDefaults);

    const QString& Root() const { return root_; }
    /// Path of a file below the folder, as it stands on disk: "Support/RSPort.cfg" finds
    /// "support/rsport.cfg" too. Backslashes and a leading separator are accepted.
    QString Path(const QString& relative) const;

private:
    QString root_;
};
