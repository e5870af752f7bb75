#include "shell/ProgramTreeView.h"

#include "programset/ProgramSet.h"
#include "shell/Icons.h"
#include <QHeaderView>
#include <QKeyEvent>

namespace {
constexpr int rootCollapsed = 1;
constexpr int rootExpanded = 2;
constexpr int child = 3;
constexpr int leastHeight = 69; // pixels: 1035 twips of a fifteenth of a pixel
} // namespace

ProgramTreeView::ProgramTreeView(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setMinimumHeight(leastHeight);
    setTabKeyNavigation(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* item) { SetImage(*item, rootExpanded); });
    connect(this, &QTreeWidget::itemCollapsed, this,
            [this](QTreeWidgetItem* item) { SetImage(*item, rootCollapsed); });
    connect(this, &QTreeWidget::itemClicked, this, &ProgramTreeView::TakeKey);
    connect(this, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        TakeKey(item);
        Q_EMIT NodeActivated(selectedKey_);
    });
}

void ProgramTreeView::ShowSet(const ProgramTree& set) {
    clear();
    auto* root = new QTreeWidgetItem(this, {set.rootText});
    root->setData(0, keyRole, set.rootKey);
    SetImage(*root, rootCollapsed);
    for (const ProgramTree::Child& sibling : set.children) {
        auto* node = new QTreeWidgetItem(root, {sibling.text});
        node->setData(0, keyRole, sibling.key);
        SetImage(*node, child);
    }
    root->setExpanded(true);
    SetImage(*root, rootExpanded); // a root without children never tells that it was expanded
}

void ProgramTreeView::SetImage(QTreeWidgetItem& item, int number) {
    item.setData(0, imageRole, number);
    item.setIcon(0, ListIcon(QStringLiteral("TreeImage%1").arg(number)));
}

void ProgramTreeView::TakeKey(const QTreeWidgetItem* item) {
    selectedKey_ = item->data(0, keyRole).toString().toUpper();
}

// The column is never narrower than the tree, so that the whole row shows what is selected.
void ProgramTreeView::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    header()->setMinimumSectionSize(viewport()->width());
}

void ProgramTreeView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !currentItem()) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    TakeKey(currentItem());
    Q_EMIT NodeActivated(selectedKey_);
}
