#include "shell/frmMain.h"

#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/Drives.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "link/RSComm.h"
#include "programset/ProgramSet.h"
#include "programset/ProgramTitle.h"
#include "programset/SiblingBoxes.h"
#include "session/Globals.h"
#include "shell/DirectoryList.h"
#include "shell/FileList.h"
#include "shell/ProgramTreeView.h"
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QKeyEvent>

ChildView::~ChildView() = default;
ProgramBrowser::~ProgramBrowser() = default;

frmMain::frmMain(RSComm& link, Dialogs& dialogs, const FileSystem& files, const Drives& drives,
                 const ApplicationFolder& folder, QWidget* parent)
    : QWidget(parent), link_(link), dialogs_(dialogs), files_(files), drives_(drives),
      folder_(folder) {
    BuildForm();
    ConnectLists();
    RegisterOwnNodes();
}

void frmMain::Form_Load() {
    const QString path = gHdnFile;
    FillDrives();
    if (files_.FileExists(path)) {
        gCurrentFile = path;
        gCurrentFolder = files_.GetParentFolderName(path);
        dirDirList_->SetPath(gCurrentFolder);
    } else {
        dirDirList_->SetPath(QDir::currentPath());
    }
    ShowDrive(dirDirList_->Path());
    filFileList_->SetPath(dirDirList_->Path());
    RefreshFileList(path);
    filFileList_->setFocus();
}

void frmMain::Form_Activate() {
    gPrintContext = PrintContext::Browser;
    gFormLoaded = true;
}

void frmMain::Form_Resize() {
    QWidget* frame = parentWidget();
    if (frame && frame->parentWidget())
        frame->setGeometry(frame->parentWidget()->rect());
}

void frmMain::RefreshDirList() {
    filFileList_->SetPath(dirDirList_->Path());
    QDir::setCurrent(dirDirList_->Path());
    trvHDNList_->update();
}

void frmMain::dirDirList_Change() {
    const bool sameFolder = filFileList_->Path() == dirDirList_->Path();
    RefreshDirList();
    if (sameFolder)
        filFileList_->Refresh();
    trvHDNList_->clear();
    Q_EMIT SelectionChanged();
}

void frmMain::RefreshFileList(const QString& path) {
    if (!files_.FileExists(path)) {
        QDir::setCurrent(folder_.Root());
        rememberedDrive_ = drvDriveList_->currentIndex();
        return;
    }
    gCurrentFile = path;
    gCurrentFolder = OnDisk(files_.GetParentFolderName(files_.GetAbsolutePathName(path)));
    FillDrives();
    ShowDrive(gCurrentFolder);
    gCurrentDrive = drvDriveList_->currentData().toString();
    if (dirDirList_->Path() == gCurrentFolder) {
        dirDirList_->Refresh();
        filFileList_->Refresh();
        QDir::setCurrent(gCurrentFolder);
    } else {
        dirDirList_->SetPath(gCurrentFolder);
    }
    filFileList_->SelectFile(files_.GetFileName(path));
}

QString frmMain::SelectedProgramPath() const {
    return ::SelectedProgramPath(dirDirList_->Path(), filFileList_->FileName());
}

QString frmMain::Folder() const {
    return dirDirList_->Path();
}

int frmMain::ListCount() const {
    return filFileList_->model()->rowCount();
}

int frmMain::ListIndex() const {
    return filFileList_->currentIndex().row();
}

void frmMain::SetListIndex(int position) {
    filFileList_->setCurrentIndex(filFileList_->model()->index(position, 0));
}

bool frmMain::HasSelection() const {
    return !filFileList_->FileName().isEmpty();
}

// The drives may have come and gone since the last look; the one shown stays.
void frmMain::FillDrives() {
    const QString shown = drvDriveList_->currentData().toString();
    drvDriveList_->clear();
    for (const QString& drive : drives_.Roots())
        drvDriveList_->addItem(QDir::toNativeSeparators(drive), drive);
    drvDriveList_->setCurrentIndex(drvDriveList_->findData(shown));
}

void frmMain::ShowDrive(const QString& path) {
    drvDriveList_->setCurrentIndex(drvDriveList_->findData(drives_.RootOf(path)));
    rememberedDrive_ = drvDriveList_->currentIndex();
}

void frmMain::drvDriveList_Change() {
    if (drvDriveList_->currentIndex() == rememberedDrive_)
        return;
    const QString drive = drvDriveList_->currentData().toString();
    if (!drives_.At(drive).isReady) {
        dialogs_.MsgBox(QStringLiteral("Selected Drive is Not Ready."), MsgStyle::Information,
                        QStringLiteral("Drives"));
        drvDriveList_->setCurrentIndex(rememberedDrive_);
        return;
    }
    gCurrentDrive = drive;
    rememberedDrive_ = drvDriveList_->currentIndex();
    dirDirList_->SetPath(drive);
    trvHDNList_->clear();
}

void frmMain::filFileList_Click() {
    try {
        ShowSelectedSet();
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("File List"), MsgStyle::Critical);
    }
    Q_EMIT SelectionChanged();
}

void frmMain::ShowSelectedSet() {
    gCurrentFolder = dirDirList_->Path();
    gHdnFile = SelectedProgramPath();
    trvHDNList_->clear(); // nothing of the set before stays when this one cannot be read
    const SelectedSet set = ReadSelectedSet(gHdnFile);
    link_.SetTargetboardType(set.boardIndex);
    trvHDNList_->ShowSet(set.tree);
}

void frmMain::HandleNode(NodeAction action, NodeHandler handler) {
    nodeHandlers_[action] = std::move(handler);
}

void frmMain::TreeNodeActivated(const QString& key) {
    const QString savedPath = gHdnFile;
    const QString program = SelectedProgramPath();
    gHdnFile = program;
    const auto handler = nodeHandlers_.find(ActionOfNode(key));
    try {
        if (handler != nodeHandlers_.end())
            handler->second(OnDisk(ChangeExtension(program, key)));
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("File List"), MsgStyle::Critical);
        return;
    }
    if (gHdnFile == program) // else the user has selected another set meanwhile: that one stays
        gHdnFile = savedPath;
}

// The nodes that need no other view.
void frmMain::RegisterOwnNodes() {
    HandleNode(NodeAction::EditTitle,
               [this](const QString& path) { EditProgramTitle(path, dialogs_); });
    HandleNode(NodeAction::ShowRevision, [this](const QString& path) {
        dialogs_.MsgBox(RevisionText(ReadRevisionRecord(path)), MsgStyle::Plain,
                        files_.GetFileName(path));
    });
    HandleNode(NodeAction::ShowFileData, [this](const QString& path) {
        const QString text = FileDataText(ReadFileData(path));
        if (QWidget* focus = QApplication::focusWidget())
            QApplication::postEvent(focus, new QKeyEvent(QEvent::KeyPress, Qt::Key_0,
                                                         Qt::NoModifier, QStringLiteral("0")));
        dialogs_.MsgBox(text, MsgStyle::Plain, files_.GetFileName(path));
    });
}
