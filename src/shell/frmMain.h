#pragma once

#include "programset/ExtensionFamily.h"
#include "shell/ChildView.h"
#include "shell/ProgramBrowser.h"
#include <array>
#include <functional>
#include <map>
#include <QWidget>

class ApplicationFolder;
class Dialogs;
class DirectoryList;
class Drives;
class FileList;
class FileSystem;
class ProgramTreeView;
class QComboBox;
class QLabel;
class QSplitter;
class RSComm;

/// The browser, the lowest view of the main window: drives, folders, program sets and the tree of
/// the selected set. Selecting a file tells the rest of the program which set is in use: it sets
/// gHdnFile and the board index of the link.
class frmMain : public QWidget, public ChildView, public ProgramBrowser {
    Q_OBJECT
public:
    /// What a double-click on a node does with the path of its file.
    using NodeHandler = std::function<void(const QString& siblingPath)>;

    /// All must outlive the view.
    frmMain(RSComm& link, Dialogs& dialogs, const FileSystem& files, const Drives& drives,
            const ApplicationFolder& folder, QWidget* parent = nullptr);

    /// True from the first activation on.
    bool gFormLoaded = false;

    /// Puts the lists onto gHdnFile, or leaves them at the current directory.
    void Form_Load();
    void Form_Activate() override;
    /// Fills the client area of the main window.
    void Form_Resize() override;

    /// The file list takes the folder of the folder list, which becomes the current directory.
    void RefreshDirList();
    void dirDirList_Change() override;
    void RefreshFileList(const QString& path) override;
    QString SelectedProgramPath() const override;
    QString Folder() const override;
    int ListCount() const override;
    int ListIndex() const override;
    void SetListIndex(int position) override;
    /// A file is selected in the list.
    bool HasSelection() const;

    /// A double-click on the node of this key: gHdnFile is the selected set for as long as the
    /// action lasts. Errors are shown, titled "File List", and the set stays in use then.
    void TreeNodeActivated(const QString& key);
    /// Sets what a node's action does. Actions without a handler do nothing.
    void HandleNode(NodeAction action, NodeHandler handler);

    /// The part of the view, in its own coordinates, that the lists leave free: where other views
    /// open without covering them.
    QRect FreeArea() const;

Q_SIGNALS:
    /// The selection or the folder has changed.
    void SelectionChanged();
    /// The popup of the file list is wanted at a point of the screen.
    void PopupRequested(const QPoint& position);
    /// Enter on a file.
    void OpenRequested();
    /// A double-click on a file, once the view was active.
    void FileDoubleClicked();
    /// The Delete key on a file.
    void DeleteRequested();

private:
    // frmMainForm.cpp
    void BuildForm();
    QWidget* LabelledList(int label, const QString& caption, const QString& name, QWidget* list);
    void ConnectLists();

    void FillDrives();
    void ShowDrive(const QString& path);
    void drvDriveList_Change();
    void filFileList_Click();
    void ShowSelectedSet();
    void RegisterOwnNodes();

    RSComm& link_;
    Dialogs& dialogs_;
    const FileSystem& files_;
    const Drives& drives_;
    const ApplicationFolder& folder_;

    QComboBox* drvDriveList_ = nullptr;
    DirectoryList* dirDirList_ = nullptr;
    FileList* filFileList_ = nullptr;
    ProgramTreeView* trvHDNList_ = nullptr;
    std::array<QLabel*, 4> lblLabel_{};
    QSplitter* lists_ = nullptr;
    int rememberedDrive_ = -1;
    std::map<NodeAction, NodeHandler> nodeHandlers_;
};
