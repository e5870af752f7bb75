#include "Controls.h"
#include "controls/grid/Grid.h"
#include "shell/frmMain.h"
#include "ViewsUnderTest.h"
#include <QAccessible>
#include <QAccessibleInterface>
#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMap>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

// What a screen reader finds: the tree of accessible objects of every view.

namespace {
using Roles = QList<QAccessible::Role>;

// Roles that a user can do something with, and those that tell something.
bool IsWorked(QAccessible::Role role) {
    static const Roles worked{
        QAccessible::PushButton,  QAccessible::ButtonMenu,     QAccessible::CheckBox,
        QAccessible::RadioButton, QAccessible::EditableText,   QAccessible::ComboBox,
        QAccessible::List,        QAccessible::Table,          QAccessible::Tree,
        QAccessible::PageTabList, QAccessible::PageTab,        QAccessible::ToolBar,
        QAccessible::MenuItem,    QAccessible::ButtonDropDown, QAccessible::SpinBox,
    };
    return worked.contains(role);
}

bool IsShown(QAccessible::Role role) {
    static const Roles shown{
        QAccessible::StaticText, QAccessible::Chart,  QAccessible::ProgressBar,
        QAccessible::Graphic,    QAccessible::Dialog, QAccessible::Grouping,
        QAccessible::StatusBar,
    };
    return shown.contains(role);
}

bool HasText(const QAccessibleInterface& object) {
    if (qobject_cast<const QDialogButtonBox*>(object.object()))
        return false; // its buttons speak
    const auto* label = qobject_cast<const QLabel*>(object.object());
    return !label || !label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull();
}

// Parts that Qt makes itself and that the tree names through their owner.
bool IsQtsOwn(const QObject* object) {
    return object && object->objectName().startsWith(QLatin1String("qt_"));
}

std::string Describe(const QAccessibleInterface& object) {
    const auto* widget = qobject_cast<const QWidget*>(object.object());
    return (widget ? Controls::NameOf(widget) : "an item") + ", role " +
           std::to_string(object.role()) + ", \"" + object.text(QAccessible::Name).toStdString() +
           '"';
}

// Every object below `object` that can be seen, it included.
void Visit(QAccessibleInterface* object, const std::function<void(QAccessibleInterface&)>& look,
           int depth = 0) {
    constexpr int deepest = 40;
    if (!object || !object->isValid() || object->state().invisible || depth > deepest)
        return;
    look(*object);
    const bool combo = object->role() == QAccessible::ComboBox;
    for (int child = 0; combo && child < object->childCount(); ++child)
        if (object->child(child) && object->child(child)->role() == QAccessible::EditableText)
            look(*object->child(child));
    const bool cells = object->role() == QAccessible::Table ||
                       object->role() == QAccessible::List || object->role() == QAccessible::Tree ||
                       object->role() == QAccessible::ComboBox;
    for (int child = 0; !cells && child < object->childCount(); ++child)
        Visit(object->child(child), look, depth + 1);
}

class Accessible : public EveryView {
protected:
    Accessible() { QAccessible::setActive(true); }
};
} // namespace

TEST_P(Accessible, EveryControlHasANameAndARole) {
    LookAtView([](QWidget& view) {
        int controls = 0;
        Visit(QAccessible::queryAccessibleInterface(&view), [&](QAccessibleInterface& object) {
            const bool matters =
                IsWorked(object.role()) || (IsShown(object.role()) && HasText(object));
            if (!matters || IsQtsOwn(object.object()) ||
                (object.object() && object.object()->objectName() == QLatin1String("cmdDefault")))
                return;
            ++controls;
            EXPECT_FALSE(object.text(QAccessible::Name).trimmed().isEmpty()) << Describe(object);
        });
        EXPECT_GT(controls, 0);
    });
}

TEST_P(Accessible, WhatTheMouseCanWorkHasARoleForIt) {
    LookAtView([](QWidget& view) {
        for (QWidget* control : Controls::ForMouse(view)) {
            QAccessibleInterface* object = QAccessible::queryAccessibleInterface(control);
            ASSERT_NE(object, nullptr) << Controls::NameOf(control);
            EXPECT_TRUE(IsWorked(object->role()) || object->role() == QAccessible::Chart ||
                        object->role() == QAccessible::StaticText)
                << Describe(*object);
            const bool byArrows = object->role() == QAccessible::RadioButton;
            EXPECT_TRUE(byArrows || object->state().focusable) << Describe(*object);
        }
    });
}

// Two entries of one name leave the user to guess.
TEST_P(Accessible, NoTwoControlsOfAViewHaveTheSameNameAndRole) {
    LookAtView([](QWidget& view) {
        QMap<QString, const QWidget*> told;
        for (QWidget* control : Controls::ForMouse(view)) {
            const QAccessibleInterface* object = QAccessible::queryAccessibleInterface(control);
            if (object->role() == QAccessible::StaticText)
                continue;
            const QString name = QStringLiteral("%1 %2")
                                     .arg(static_cast<int>(object->role()))
                                     .arg(object->text(QAccessible::Name));
            EXPECT_FALSE(told.contains(name))
                << Controls::NameOf(control) << " is called as " << Controls::NameOf(told[name])
                << ": " << name.toStdString();
            told[name] = control;
        }
    });
}

// The name of a list is its choice on some platforms: what the list is for is told by a label that
// belongs to it, or by its description.
TEST_P(Accessible, EveryListOfChoicesHasALabelOrADescription) {
    LookAtView([](QWidget& view) {
        for (QComboBox* list : view.findChildren<QComboBox*>()) {
            const QAccessibleInterface* object = QAccessible::queryAccessibleInterface(list);
            const bool labelled = !object->relations(QAccessible::Label).isEmpty();
            EXPECT_TRUE(labelled || !object->text(QAccessible::Description).isEmpty())
                << Controls::NameOf(list);
        }
    });
}

TEST_P(Accessible, EveryColumnOfAGridHasAName) {
    LookAtView([](QWidget& view) {
        for (Grid* grid : view.findChildren<Grid*>()) {
            const QAccessibleInterface* table = QAccessible::queryAccessibleInterface(grid);
            int heads = 0;
            for (int child = 0; child < table->childCount() && heads < grid->Cols(); ++child) {
                const QAccessibleInterface* head = table->child(child);
                if (!head || head->role() != QAccessible::ColumnHeader)
                    continue;
                ++heads;
                EXPECT_FALSE(head->text(QAccessible::Name).trimmed().isEmpty())
                    << Controls::NameOf(grid) << " column " << heads;
            }
            EXPECT_EQ(heads, grid->Cols());
        }
    });
}

// A name that stands in place of a label's text must hold the text as well.
TEST_P(Accessible, WhatALabelShowsIsSaid) {
    LookAtView([](QWidget& view) {
        for (QLabel* label : view.findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty() || IsQtsOwn(label))
                continue;
            const QAccessibleInterface* object = QAccessible::queryAccessibleInterface(label);
            const QString said = object->text(QAccessible::Name);
            QString shown = label->text();
            if (label->buddy()) // then "&" marks a letter
                shown.remove(u'&');
            EXPECT_TRUE(said.contains(shown))
                << Controls::NameOf(label) << " shows " << shown.toStdString() << ", said is "
                << said.toStdString();
        }
    });
}

TEST_P(Accessible, WhatIsPaintedIsSaid) {
    LookAtView([](QWidget& view) {
        Visit(QAccessible::queryAccessibleInterface(&view), [](QAccessibleInterface& object) {
            if (object.role() == QAccessible::Chart) {
                EXPECT_FALSE(object.text(QAccessible::Value).isEmpty()) << Describe(object);
                EXPECT_EQ(object.text(QAccessible::Description), object.text(QAccessible::Value));
            }
        });
        for (const char* painted : {"picGraph", "picCycle"})
            if (QWidget* picture = view.findChild<QWidget*>(QLatin1String(painted))) {
                EXPECT_EQ(QAccessible::queryAccessibleInterface(picture)->role(),
                          QAccessible::Chart)
                    << painted;
            }
    });
}

INSTANTIATE_TEST_SUITE_P(Views, Accessible, testing::ValuesIn(ViewCases()),
                         [](const auto& view) { return std::string(view.param.name); });

namespace {
class AccessibleWindow : public ViewsUnderTest {
protected:
    AccessibleWindow() : ViewsUnderTest(haldenboard::SimulatedBoard::DefaultModel) {
        QAccessible::setActive(true);
    }
    static QString NameOf(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }
};
} // namespace

TEST_F(AccessibleWindow, NamesWhatStandsAroundTheViews) {
    EXPECT_EQ(NameOf(Window().statusBar()), QStringLiteral("Status bar"));
    EXPECT_EQ(NameOf(&Window().Commands().Toolbar()), QStringLiteral("Toolbar"));
    for (QMdiSubWindow* frame : Window().findChildren<QMdiSubWindow*>())
        EXPECT_FALSE(NameOf(frame).isEmpty()) << frame->widget()->objectName().toStdString();
    for (QToolButton* button : Window().Commands().Toolbar().findChildren<QToolButton*>())
        EXPECT_TRUE(!button->isVisible() || !NameOf(button).isEmpty())
            << button->objectName().toStdString();
    for (QAction* menu : Window().menuBar()->actions())
        for (QAction* entry : menu->menu()->actions())
            EXPECT_TRUE(entry->isSeparator() || !entry->text().isEmpty());
}

TEST_F(AccessibleWindow, AShownModeIsSaid) {
    auto* panel = Find<QLabel>(QStringLiteral("sbrMain(2)"));
    EXPECT_EQ(NameOf(panel), QStringLiteral("OFFLINE"));
    Entry(QStringLiteral("mnuViewOnline"))->trigger();
    EXPECT_EQ(NameOf(panel), QStringLiteral("ONLINE"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(panel)->text(QAccessible::Description),
              QStringLiteral("Communications Mode"));
}

TEST_F(AccessibleWindow, DividersAreSeparatorsWithAName) {
    const auto dividers = Window().Browser().findChildren<QSplitterHandle*>();
    int seen = 0;
    for (QSplitterHandle* divider : dividers) {
        if (!divider->isVisible())
            continue;
        ++seen;
        EXPECT_EQ(QAccessible::queryAccessibleInterface(divider)->role(), QAccessible::Separator);
        EXPECT_FALSE(NameOf(divider).isEmpty());
    }
    EXPECT_EQ(seen, 3);
}
