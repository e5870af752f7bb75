#include "shell/FileList.h"

#include "programset/ProgramSet.h"
#include "shell/Icons.h"
#include <algorithm>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace {
constexpr int rowIconSize = 16; // pixels at 100 per cent

// Position of a name whatever its letter case, or -1. Where two names differ in letter case only,
// each is a set of its own, and the exact one is meant.
qsizetype PositionOf(const QString& name, const QStringList& names) {
    const qsizetype exact = names.indexOf(name);
    if (exact >= 0)
        return exact;
    const auto found = std::find_if(names.begin(), names.end(), [&name](const QString& listed) {
        return listed.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == names.end() ? -1 : found - names.begin();
}
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
    const qsizetype row = PositionOf(name, names_.stringList());
    if (row < 0)
        return;
    currentMoved_ = false;
    setCurrentIndex(names_.index(static_cast<int>(row)));
    if (!currentMoved_)
        Q_EMIT Clicked();
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
