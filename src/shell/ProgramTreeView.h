#pragma once

#include <QTreeWidget>

struct ProgramTree;

/// The tree of the selected program set: its board in the root, one child per known sibling.
class ProgramTreeView : public QTreeWidget {
    Q_OBJECT
public:
    /// Where a node keeps its key and the number of its image (1 root collapsed, 2 root expanded,
    /// 3 child).
    static constexpr int keyRole = Qt::UserRole;
    static constexpr int imageRole = Qt::UserRole + 1;

    explicit ProgramTreeView(QWidget* parent = nullptr);

    /// Shows the set; the children stand in the order of their texts and the root is expanded.
    void ShowSet(const ProgramTree& set);
    /// Key of the last clicked node in upper case: a sibling's extension, or the base name.
    const QString& SelectedKey() const { return selectedKey_; }

Q_SIGNALS:
    /// A double-click or Enter on the node of this key.
    void NodeActivated(const QString& key);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetImage(QTreeWidgetItem& item, int number);
    void TakeKey(const QTreeWidgetItem* item);

    QString selectedKey_;
};
