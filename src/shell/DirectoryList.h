#pragma once

#include <QTreeWidget>

/// The folder list: the folders down to the current one, each a step further in, then the folders
/// inside it. A double-click or Enter goes into a folder, Backspace goes up.
class DirectoryList : public QTreeWidget {
    Q_OBJECT
public:
    explicit DirectoryList(QWidget* parent = nullptr);

    /// The current folder: absolute, without a separator at its end except for a root folder.
    const QString& Path() const { return path_; }
    /// Goes to a folder, or to the nearest one above it that exists; emits Changed if that is
    /// another one than before.
    void SetPath(const QString& path);
    /// Reads the folders again.
    void Refresh();

Q_SIGNALS:
    /// Path has changed.
    void Changed();
    /// The user clicked a folder without going into it.
    void Clicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// The folders always stand open: there is nothing to fold.
    void drawBranches(QPainter*, const QRect&, const QModelIndex&) const override {}

private:
    QTreeWidgetItem* AddFolder(QTreeWidgetItem* parent, const QString& path, const QString& name,
                               bool open);
    void Enter(const QTreeWidgetItem* item);

    QString path_;
};
