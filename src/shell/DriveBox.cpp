#include "shell/DriveBox.h"

#include "base/Dialogs.h"
#include "base/Drives.h"
#include <QDir>

DriveBox::DriveBox(const Drives& drives, Dialogs& dialogs, QWidget* parent)
    : QComboBox(parent), drives_(drives), dialogs_(dialogs) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, &DriveBox::Activated);
}

void DriveBox::ShowDriveOf(const QString& path) {
    clear();
    for (const QString& drive : drives_.Roots())
        addItem(QDir::toNativeSeparators(drive), drive);
    setCurrentIndex(findData(drives_.RootOf(path)));
    remembered_ = currentIndex();
}

void DriveBox::Activated() {
    if (currentIndex() == remembered_)
        return;
    const QString root = currentData().toString();
    if (!drives_.At(root).isReady) {
        dialogs_.MsgBox(QStringLiteral("Selected Drive is Not Ready."), MsgStyle::Information,
                        QStringLiteral("Drives"));
        setCurrentIndex(remembered_);
        return;
    }
    remembered_ = currentIndex();
    Q_EMIT Changed(root);
}
