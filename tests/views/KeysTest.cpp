#include "controls/grid/Grid.h"
#include "controls/KeyedSplitter.h"
#include "shell/CommandTable.h"
#include "shell/frmMain.h"
#include "trending/views/GraphView.h"
#include "ViewsUnderTest.h"
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QListView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTest>
#include <QToolButton>

// Keys for what else only a mouse does: menus, toolbar, the views' frames, dividers, columns, the
// crosshair of the graph.

namespace {
class Keys : public ViewsUnderTest {
protected:
    Keys() : ViewsUnderTest(haldenboard::SimulatedBoard::DefaultModel) {}

    static QWidget* Focus() { return QApplication::focusWidget(); }
    /// Presses a key wherever the focus is.
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* focus = popup ? popup : Focus();
        QTest::keyClick(focus ? focus : &Window(), static_cast<Qt::Key>(key), modifiers);
        QCoreApplication::processEvents();
    }
    std::string FocusName() { return Focus() ? Focus()->objectName().toStdString() : "nowhere"; }
    /// A popup is up and is closed again.
    static bool PopupCame() {
        QWidget* popup = QApplication::activePopupWidget();
        if (popup)
            popup->close();
        return popup != nullptr;
    }
    QWidget* Menu(const char* name) { return Window().Commands().Menu(QLatin1String(name)); }
    static QList<QAction*> Live(const QMenu& menu) {
        QList<QAction*> live;
        for (QAction* entry : menu.actions())
            if (entry->isVisible() && entry->isEnabled() && !entry->isSeparator())
                live.append(entry);
        return live;
    }
};
} // namespace

TEST_F(Keys, F10OpensTheMenuBarAndTheArrowsReachEveryEntry) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Press(Qt::Key_F10);
    QSet<QAction*> reached;
    QSet<QAction*> wanted;
    for (QAction* top : Window().menuBar()->actions()) {
        if (!top->isVisible())
            continue;
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_EQ(menu, top->menu()) << top->text().toStdString();
        const QList<QAction*> live = Live(*menu);
        wanted.unite({live.begin(), live.end()});
        for (int step = 0; step < menu->actions().size(); ++step) {
            reached.insert(menu->activeAction());
            Press(Qt::Key_Down);
        }
        Press(Qt::Key_Right);
    }
    while (PopupCame())
        continue;
    EXPECT_GT(wanted.size(), 15);
    EXPECT_TRUE(reached.contains(wanted));
}

TEST_F(Keys, ReturnRunsAnEntryThatWasReached) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QTest::keyClick(&Window(), Qt::Key_V, Qt::AltModifier);
    ASSERT_EQ(QApplication::activePopupWidget(), Menu("mnuView"));
    const auto* menu = qobject_cast<QMenu*>(Menu("mnuView"));
    for (int step = 0; step < 10 && menu->activeAction() != Entry("mnuViewOnline"); ++step)
        Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Link().OnlineMode());
}

// The letter is that of the table's frame as well: the second press goes on to the menu.
TEST_F(Keys, AltSInTheStatusTableReachesItsMenu) {
    WholeProgram::Press("Status");
    bool opened = false;
    for (int press = 0; press < 2 && !opened; ++press) {
        Press(Qt::Key_S, Qt::AltModifier);
        opened = QApplication::activePopupWidget() == Menu("mnuStatusTable");
    }
    EXPECT_TRUE(opened);
    PopupCame();
}

TEST_F(Keys, F6ReachesEveryButtonOfTheToolbarAndGoesBack) {
    Find<QListView>(QStringLiteral("filFileList"))->setFocus();
    Press(Qt::Key_F6);
    QSet<QString> reached;
    for (std::size_t step = 0; step < ToolbarTable().size(); ++step) {
        reached.insert(Focus()->objectName());
        Press(Qt::Key_Right);
    }
    for (const ToolbarEntry& entry : ToolbarTable()) {
        auto* button = Window().findChild<QToolButton*>(QLatin1String(entry.key));
        const bool live = *entry.key && button->isVisible() && button->isEnabled();
        EXPECT_TRUE(!live || reached.contains(QLatin1String(entry.key))) << entry.key;
    }
    Press(Qt::Key_Escape);
    EXPECT_EQ(FocusName(), "filFileList");
    Press(Qt::Key_F6);
    Press(Qt::Key_F6);
    EXPECT_EQ(FocusName(), "filFileList");
}

TEST_F(Keys, TheButtonOfTheToolbarThatHasTheFocusIsSeen) {
    Press(Qt::Key_Tab); // a user of the keyboard
    Press(Qt::Key_F6);
    QWidget* button = Focus();
    const QImage with = button->grab().toImage();
    Press(Qt::Key_Right);
    ASSERT_NE(Focus(), button);
    EXPECT_NE(with, button->grab().toImage());
}

TEST_F(Keys, ReturnPressesAButtonOfTheToolbar) {
    Press(Qt::Key_F6);
    for (int step = 0; step < 20 && FocusName() != "Trend"; ++step)
        Press(Qt::Key_Right);
    ASSERT_EQ(FocusName(), "Trend");
    Press(Qt::Key_Return);
    EXPECT_EQ(Window().ActiveChildName(), QStringLiteral("frmTrending"));
}

TEST_F(Keys, CtrlF6GoesThroughAllViewsAndKeepsEachOnesFocus) {
    WholeProgram::Press("Trend");
    WholeProgram::Press("Status");
    Find<QWidget>(QStringLiteral("cmdSaveTable"))->setFocus();
    QStringList seen;
    for (int step = 0; step < 3; ++step) {
        Press(Qt::Key_F6, Qt::ControlModifier);
        seen << Window().ActiveChildName();
    }
    EXPECT_EQ(QSet<QString>(seen.begin(), seen.end()),
              QSet<QString>({QStringLiteral("frmMain"), QStringLiteral("frmStatusTable"),
                             QStringLiteral("frmTrending")}));
    EXPECT_EQ(seen.last(), QStringLiteral("frmStatusTable"));
    EXPECT_EQ(FocusName(), "cmdSaveTable");
    Press(Qt::Key_F6, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Window().ActiveChildName(), seen.at(1));
}

TEST_F(Keys, AltMinusOpensTheMenuOfTheActiveViewButNotOfTheBrowser) {
    WholeProgram::Press("Status");
    Press(Qt::Key_Minus, Qt::AltModifier);
    EXPECT_TRUE(PopupCame());
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    Press(Qt::Key_Minus, Qt::AltModifier);
    EXPECT_FALSE(PopupCame());
}

TEST_F(Keys, F8GoesThroughTheDividersAndTheArrowsMoveThem) {
    auto* list = Find<QListView>(QStringLiteral("filFileList"));
    list->setFocus();
    QSet<QWidget*> dividers;
    for (int step = 0; step < 3; ++step) {
        Press(Qt::Key_F8);
        auto* divider = qobject_cast<QSplitterHandle*>(Focus());
        ASSERT_NE(divider, nullptr);
        dividers.insert(divider);
        EXPECT_FALSE(divider->accessibleName().isEmpty());
        const bool across = divider->orientation() == Qt::Horizontal;
        const QPoint before = divider->pos();
        Press(across ? Qt::Key_Left : Qt::Key_Up);
        EXPECT_NE(divider->pos(), before) << divider->accessibleName().toStdString();
        Press(across ? Qt::Key_Right : Qt::Key_Down);
        EXPECT_EQ(divider->pos(), before);
    }
    EXPECT_EQ(dividers.size(), 3);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Focus(), list);
}

TEST_F(Keys, TheMenuKeyOpensThePopupsOfListAndGrids) {
    const auto menuKey = [](QWidget* place) {
        place->setFocus();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place->rect().center(),
                                place->mapToGlobal(place->rect().center()));
        QApplication::sendEvent(place, &event);
        return PopupCame();
    };
    EXPECT_TRUE(menuKey(Find<QListView>(QStringLiteral("filFileList"))));
    EXPECT_TRUE(menuKey(&Table()));
    WholeProgram::Press("Trend");
    EXPECT_TRUE(menuKey(Find<Grid>(QStringLiteral("fgTrend"))));
    EXPECT_TRUE(menuKey(Find<GraphView>(QStringLiteral("picGraph"))));
}

TEST_F(Keys, CtrlPlusAndMinusSizeTheColumnOfAGrid) {
    Table().setFocus();
    Table().SetCell(2, 1);
    const int before = Table().columnWidth(1);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(Table().columnWidth(1), before);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Table().columnWidth(1), before);
    EXPECT_EQ(Cell(2, 1), QString()) << "nothing was typed";
}

TEST_F(Keys, TheArrowsMoveTheCrosshairOfTheGraphAndItsValueIsSaid) {
    Trending([this](QWidget& view) {
        auto* graph = view.findChild<GraphView*>();
        graph->Show({5, 7, 6});
        graph->setFocus();
        Press(Qt::Key_Right);
        EXPECT_EQ(graph->CrosshairText(), QStringLiteral("Sample 0: 5"));
        Press(Qt::Key_Right);
        EXPECT_EQ(graph->CrosshairText(), QStringLiteral("Sample 1: 7"));
        Press(Qt::Key_End);
        Press(Qt::Key_Right);
        EXPECT_EQ(graph->CrosshairText(), QStringLiteral("Sample 2: 6"));
        const auto* said = QAccessible::queryAccessibleInterface(graph);
        EXPECT_EQ(said->text(QAccessible::Value),
                  QStringLiteral("3 samples from 5 to 7; Sample 2: 6"));
        Press(Qt::Key_Home);
        Press(Qt::Key_Left);
        EXPECT_EQ(graph->CrosshairText(), QStringLiteral("Sample 0: 5"));
        Press(Qt::Key_Escape);
        EXPECT_EQ(graph->CrosshairText(), QString());
    });
}

// Whatever a button of the toolbar does an entry of a menu does as well.
TEST_F(Keys, EveryButtonOfTheToolbarHasItsEntry) {
    const std::map<QString, QString> entries = {
        {QStringLiteral("View"), QStringLiteral("mnuViewSearchResults")},
        {QStringLiteral("Program"), QStringLiteral("mnuFileListPopupDownloadProg")},
        {QStringLiteral("Upload"), QStringLiteral("mnuFileUploadData")},
        {QStringLiteral("Download"), QStringLiteral("mnuFileDownloadData")},
        {QStringLiteral("Status"), QStringLiteral("mnuToolsStatusTable")},
        {QStringLiteral("Trend"), QStringLiteral("mnuToolsTrending")},
        {QStringLiteral("PLS"), QStringLiteral("mnuToolsPLSProgramming")},
        {QStringLiteral("PLC"), QStringLiteral("mnuViewTargetBoardStatus")},
    };
    for (const ToolbarEntry& button : ToolbarTable()) {
        const QString key = QLatin1String(button.key);
        if (key.isEmpty() || !Entry(key)->isVisible())
            continue;
        ASSERT_TRUE(entries.contains(key)) << button.key;
        const QString entry = entries.at(key);
        EXPECT_TRUE(Window().Commands().Handled().contains(entry)) << button.key;
        EXPECT_TRUE(!Entry(key)->isEnabled() || Entry(entry)->isEnabled()) << button.key;
    }
}
