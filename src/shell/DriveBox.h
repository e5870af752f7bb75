#pragma once

#include <QComboBox>

class Dialogs;
class Drives;

/// The list of drives above a folder list. A drive that is not ready is told to the user, and the
/// one before comes back.
class DriveBox final : public QComboBox {
    Q_OBJECT
public:
    /// Both must outlive the box.
    DriveBox(const Drives& drives, Dialogs& dialogs, QWidget* parent = nullptr);

    /// Lists the drives again and shows the one that a path is on.
    void ShowDriveOf(const QString& path);

Q_SIGNALS:
    /// The user has changed to another drive, which is ready.
    void Changed(const QString& root);

private:
    void Activated();

    const Drives& drives_;
    Dialogs& dialogs_;
    int remembered_ = -1;
};
