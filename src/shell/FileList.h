#pragma once

#include <QListView>
#include <QStringListModel>

/// The names of the list, each with the icon of a program set.
class FileListModel : public QStringListModel {
    Q_OBJECT
public:
    using QStringListModel::QStringListModel;
    QVariant data(const QModelIndex& index, int role) const override;
};

/// The list of the program set files (*.hdn, in any letter case) of one folder.
class FileList : public QListView {
    Q_OBJECT
public:
    explicit FileList(QWidget* parent = nullptr);

    const QString& Path() const { return path_; }
    /// Lists the files of another folder; nothing is selected then. The same folder is left as it
    /// stands.
    void SetPath(const QString& path);
    /// Reads the folder again; nothing is selected then.
    void Refresh();
    /// Name of the selected file, empty when none is.
    QString FileName() const;
    /// Selects the file of this name, or without one the first whose name differs in letter case
    /// only, and emits Clicked, as a click does. Without either nothing changes.
    void SelectFile(const QString& name);

Q_SIGNALS:
    /// A file was selected, by the user or by the program.
    void Clicked();
    /// A double-click of the left button on a file.
    void DoubleClicked();
    /// Return or Enter in the list, whether a file is selected or not.
    void EnterPressed();
    /// The Delete key in the list, likewise.
    void DeletePressed();
    /// The right mouse button or the menu key, at a point of the screen.
    void PopupRequested(const QPoint& position);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    QString path_;
    FileListModel names_;
    bool refreshing_ = false;
    bool currentMoved_ = false;
};
