#include "ShownTexts.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/grid/Grid.h"
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QTabBar>
#include <QToolBar>
#include <QTreeView>

namespace {
const QString caption = QStringLiteral("caption");
const QString tooltip = QStringLiteral("tooltip");

class TextCollector {
public:
    std::vector<ShownText> Collect(const QWidget& view) {
        Note(view, QStringLiteral("title"), view.windowTitle());
        Walk(view);
        return std::move(texts_);
    }

private:
    static QString NameOf(const QObject& object) {
        return object.objectName().isEmpty() ? QStringLiteral("*") : object.objectName();
    }
    void Note(const QObject& control, const QString& kind, const QString& text) {
        NoteNamed(NameOf(control), kind, text);
    }
    void NoteNamed(const QString& control, const QString& kind, const QString& text) {
        if (!text.trimmed().isEmpty())
            texts_.push_back({control, kind, text});
    }

    // The toolkit's own parts have names that begin with "qt_". The arrows of an entry are the same
    // everywhere and have a list of their own.
    static bool IsApart(const QWidget& child) {
        const QString name = child.objectName();
        return name.startsWith(QStringLiteral("frm")) || name.startsWith(QStringLiteral("qt_")) ||
               qobject_cast<const QMdiArea*>(&child) || qobject_cast<const EntryUpDown*>(&child);
    }
    // Below these are parts of the toolkit only.
    static bool IsWhole(const QWidget& widget) {
        return qobject_cast<const QToolBar*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
               qobject_cast<const QTabBar*>(&widget) ||
               qobject_cast<const QAbstractItemView*>(&widget);
    }

    void Walk(const QWidget& widget) {
        NoteWidget(widget);
        if (IsWhole(widget))
            return;
        for (const QObject* child : widget.children()) {
            const auto* part = qobject_cast<const QWidget*>(child);
            if (part && !IsApart(*part))
                Walk(*part);
        }
    }

    void NoteWidget(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            Note(widget, caption, label->text());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            Note(widget, caption, button->text());
        else if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
            Note(widget, caption, frame->title());
        else if (const auto* entry = qobject_cast<const QLineEdit*>(&widget))
            Note(widget, QStringLiteral("hint"), entry->placeholderText());
        else if (const auto* box = qobject_cast<const QComboBox*>(&widget))
            NoteEntries(*box);
        else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
            NoteTabs(*tabs);
        else if (const auto* menu = qobject_cast<const QMenu*>(&widget))
            NoteMenu(*menu);
        else if (const auto* bar = qobject_cast<const QToolBar*>(&widget))
            NoteToolbar(*bar);
        else
            NoteHeads(widget);
        Note(widget, tooltip, widget.toolTip());
        for (const QString& spoken : {widget.accessibleName(), widget.accessibleDescription()})
            if (spoken != widget.toolTip())
                Note(widget, QStringLiteral("spoken"), spoken);
    }

    void NoteEntries(const QComboBox& box) {
        for (int index = 0; index < box.count(); ++index)
            Note(box, QStringLiteral("entry"), box.itemText(index));
    }

    void NoteTabs(const QTabBar& tabs) {
        for (int index = 0; index < tabs.count(); ++index)
            NoteNamed(QStringLiteral("%1(%2)").arg(NameOf(tabs)).arg(index), caption,
                      tabs.tabText(index));
    }

    void NoteMenu(const QMenu& menu) {
        Note(menu, caption, menu.title());
        for (const QAction* entry : menu.actions()) {
            if (entry->menu())
                continue; // a menu of its own
            Note(*entry, caption, entry->text());
            Note(*entry, QStringLiteral("key"), entry->shortcut().toString());
        }
    }

    // The text of a button without its mnemonic is read out and stands in the toolbar's overflow.
    void NoteToolbar(const QToolBar& bar) {
        Note(bar, QStringLiteral("title"), bar.windowTitle());
        int index = 0;
        for (const QAction* button : bar.actions()) {
            const QString name = QStringLiteral("%1(%2)").arg(NameOf(bar)).arg(++index);
            if (button->isSeparator())
                continue;
            NoteNamed(name, tooltip, button->toolTip());
            NoteNamed(name, caption, button->text());
        }
    }

    void NoteHeads(const QWidget& widget) {
        const QString head = QStringLiteral("head");
        if (const auto* grid = qobject_cast<const Grid*>(&widget)) {
            for (int row = 0; row < grid->FixedRows(); ++row)
                for (int column = 0; column < grid->Cols(); ++column)
                    Note(widget, head, grid->TextMatrix(row, column));
        } else if (const auto* tree = qobject_cast<const QTreeView*>(&widget)) {
            for (int column = 0; !tree->isHeaderHidden() && column < tree->header()->count();
                 ++column)
                Note(widget, head, tree->model()->headerData(column, Qt::Horizontal).toString());
        }
    }

    std::vector<ShownText> texts_;
};
} // namespace

std::vector<ShownText> TextsOf(const QWidget& view) {
    return TextCollector().Collect(view);
}
