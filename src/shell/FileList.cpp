#include "shell/FileList.h"

#include "programset/ProgramSet.h"
#include "shell/Icons.h"
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {
constexpr int rowIconSize = 16; // pixels at 100 per cent
} // namespace

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    static const QIcon icon = ListIcon(QStringLiteral("TreeImage1"));
    return role == Qt::DecorationRole ? QVariant(icon) : QStringListModel::data(index, role);
}

FileList::FileList(QWidget* parent) : QListView(parent) {
    setModel(&names_);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setIconSize(QSize(rowIconSize, rowIconSize));
    setUniformItemSizes(true); // a folder may hold thousands of sets
    setTabKeyNavigation(false);
}

void FileList::SetPath(const QString& path) {
    if (path == path_)
        return;
    path_ = path;
    Refresh();
}

void FileList::Refresh() {
    const QScopedValueRollback<bool> refreshing(refreshing_, true);
    names_.setStringList(ProgramFiles(path_));
    setCurrentIndex(QModelIndex());
}

QString FileList::FileName() const {
    return currentIndex().data().toString();
}

void FileList::SelectFile(const QString& name) {
    for (int row = 0; row < names_.rowCount(); ++row) {
        const QModelIndex index = names_.index(row);
        if (index.data().toString().compare(name, Qt::CaseInsensitive) != 0)
            continue;
        currentMoved_ = false;
        setCurrentIndex(index);
        if (!currentMoved_)
            Q_EMIT Clicked();
        return;
    }
}

void FileList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    currentMoved_ = true;
    if (!refreshing_ && current.isValid())
        Q_EMIT Clicked();
}

void FileList::mousePressEvent(QMouseEvent* event) {
    currentMoved_ = false;
    QListView::mousePressEvent(event);
    if (!currentMoved_ && indexAt(event->pos()).isValid())
        Q_EMIT Clicked();
}

void FileList::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
        Q_EMIT DoubleClicked();
}

void FileList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT EnterPressed();
        return;
    case Qt::Key_Delete:
        Q_EMIT DeletePressed();
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void FileList::contextMenuEvent(QContextMenuEvent* event) {
    QPoint position = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid())
        position = viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft());
    Q_EMIT PopupRequested(position);
}
