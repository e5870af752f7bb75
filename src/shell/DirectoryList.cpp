#include "shell/DirectoryList.h"

#include "shell/Icons.h"
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>

namespace {
constexpr int pathRole = Qt::UserRole;
constexpr int indent = 14; // pixels from a folder to those inside it

// The nearest existing folder at or above `path`, absolute and clean; the root folder where nothing
// is left to stand on, since the current folder of the process itself may have been removed.
QString ExistingFolder(const QString& path) {
    QDir folder(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    if (!folder.isAbsolute())
        return QDir::rootPath();
    while (!folder.exists() && !folder.isRoot())
        folder.setPath(QFileInfo(folder.path()).path());
    return folder.path();
}

// The root folder, then each folder on the way down to `path`.
QStringList FoldersDownTo(const QString& path) {
    QStringList folders = {path};
    while (!QDir(folders.first()).isRoot())
        folders.prepend(QFileInfo(folders.first()).path());
    return folders;
}
} // namespace

DirectoryList::DirectoryList(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setIndentation(indent);
    setTabKeyNavigation(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { Enter(item); });
    connect(this, &QTreeWidget::itemClicked, this, [this] { Q_EMIT Clicked(); });
    path_ = ExistingFolder(QDir::currentPath());
    Refresh();
}

void DirectoryList::SetPath(const QString& path) {
    const QString folder = ExistingFolder(path);
    if (folder == path_)
        return;
    path_ = folder;
    Refresh();
    Q_EMIT Changed();
}

void DirectoryList::Refresh() {
    clear();
    QTreeWidgetItem* parent = nullptr;
    for (const QString& folder : FoldersDownTo(path_)) {
        const QString name = QFileInfo(folder).fileName();
        parent = AddFolder(parent, folder, name.isEmpty() ? QDir::toNativeSeparators(folder) : name,
                           true);
    }
    const QDir current(path_);
    const QStringList names =
        current.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString& name : names)
        AddFolder(parent, current.filePath(name), name, false);
    expandAll();
    setCurrentItem(parent);
    scrollToItem(parent, QAbstractItemView::PositionAtCenter);
}

QTreeWidgetItem* DirectoryList::AddFolder(QTreeWidgetItem* parent, const QString& path,
                                          const QString& name, bool open) {
    static const QIcon openIcon = ListIcon(QStringLiteral("FolderOpen"));
    static const QIcon closedIcon = ListIcon(QStringLiteral("Folder"));
    auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
    item->setText(0, name);
    item->setIcon(0, open ? openIcon : closedIcon);
    item->setData(0, pathRole, path);
    return item;
}

// The column is never narrower than the list, so that the whole row shows what is selected.
void DirectoryList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    header()->setMinimumSectionSize(viewport()->width());
}

void DirectoryList::Enter(const QTreeWidgetItem* item) {
    if (item)
        SetPath(item->data(0, pathRole).toString());
}

void DirectoryList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Enter(currentItem());
        return;
    case Qt::Key_Backspace:
        SetPath(QFileInfo(path_).path());
        return;
    default:
        QTreeWidget::keyPressEvent(event);
    }
}
