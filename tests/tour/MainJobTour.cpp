#include "tour/MainJobTour.h"

#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/TourGuide.h"
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

namespace {
QString PanelText(frmMDIMain& window, int panel) {
    const auto* label = window.findChild<QLabel*>(QStringLiteral("sbrMain(%1)").arg(panel));
    return label ? label->text() : QStringLiteral("(no panel)");
}

// Clicks the row of a list that shows `text`; false if there is none.
bool ClickRow(QAbstractItemView& list, const QString& text) {
    const QModelIndexList found =
        list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.front()).center());
    return true;
}

QString TreeRoot(frmMDIMain& window) {
    const auto* tree = window.findChild<QTreeView*>(QStringLiteral("trvHDNList"));
    return tree ? tree->model()->index(0, 0).data().toString() : QString();
}

QString ProgressText() {
    const QWidget* view = QApplication::activeModalWidget();
    const auto* label = view ? view->findChild<QLabel*>(QStringLiteral("lblWaitDisplay")) : nullptr;
    return label ? label->text() : QString();
}

void PressButton(frmMDIMain& window, const char* key) {
    if (auto* button = window.findChild<QToolButton*>(QLatin1String(key)))
        QTest::mouseClick(button, Qt::LeftButton);
}

// A key goes to the active window, which the last box has been until now.
void PressF3(frmMDIMain& window) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F3);
}

bool Always() {
    return true;
}

void AddOnline(TourGuide& guide, frmMDIMain& window) {
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return PanelText(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently OFF-LINE"));
    guide.Picture(QStringLiteral("start"));
    guide.Stop(QStringLiteral("press F3"), Always, [&window] { PressF3(window); });
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return PanelText(window, 2); },
        QStringLiteral("ONLINE"));
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return PanelText(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently ON-LINE"));
    guide.Picture(QStringLiteral("online"));
}

void AddBrowse(TourGuide& guide, frmMDIMain& window) {
    guide.Stop(QStringLiteral("click PUMP1.hdn in the file list"), Always, [&window] {
        if (auto* list = window.findChild<QListView*>(QStringLiteral("filFileList")))
            ClickRow(*list, QStringLiteral("PUMP1.hdn"));
    });
    guide.Expect(
        QStringLiteral("the tree's root"), [&window] { return TreeRoot(window); },
        QStringLiteral("K2012 [PUMP1]"));
    guide.Picture(QStringLiteral("browse"));
}

void AddDump(TourGuide& guide, frmMDIMain& window) {
    const QString question = QStringLiteral("Program Download - [PUMP1]");
    guide.Stop(QStringLiteral("press the toolbar's download button"), Always,
               [&window] { PressButton(window, "Program"); });
    guide.AnswerBox(question, QStringLiteral("Yes"), QStringLiteral("question"));
    guide.Stop(
        QStringLiteral("the progress shows an address"),
        [] { return ProgressText().startsWith(QLatin1String("Writing to Program Address: ")); },
        [] {}, 60.0);
    guide.Picture(QStringLiteral("dump"));
    guide.Stop(
        QStringLiteral("the end of the dump is reported"),
        [] {
            return QApplication::activeModalWidget() &&
                   QApplication::activeModalWidget()->windowTitle() ==
                       QLatin1String("Program Download");
        },
        [] {}, 120.0);
    guide.AnswerBox(QStringLiteral("Program Download"), QStringLiteral("OK"),
                    QStringLiteral("complete"));
}

// "PUMP1" and three zeros, as eight bytes.
void AddIdentCheck(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    guide.Stop(
        QStringLiteral("the view has gone"),
        [] { return QApplication::activeModalWidget() == nullptr; }, [] {});
    guide.Expect(
        QStringLiteral("the board's ident"),
        [&board] { return board.Command(QStringLiteral("show 61424 8")); },
        QStringLiteral("61424: 80 85 77 80 49 0 0 0"));
    guide.Stop(QStringLiteral("press the toolbar's download button again"), Always,
               [&window] { PressButton(window, "Program"); });
    guide.AnswerBox(QStringLiteral("Program Download - [PUMP1]"), QStringLiteral("No"),
                    QStringLiteral("ident-changed"));
}

void AddLineCut(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    // With the status table on the screen the board is polled while that view is the active one.
    guide.Stop(QStringLiteral("press the status table button, cut the line"), Always,
               [&window, &board] {
                   PressButton(window, "Status");
                   board.Command(QStringLiteral("fault silence"));
               });
    guide.AnswerBox(QStringLiteral("WARNING - Communication Error!"), QStringLiteral("Cancel"),
                    QStringLiteral("line-cut"));
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return PanelText(window, 1); },
        QStringLiteral("System Message:  Comm Fault with Target Board"));
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return PanelText(window, 2); },
        QStringLiteral("OFFLINE"));
    guide.Picture(QStringLiteral("comm-fault"));
    guide.Stop(QStringLiteral("mend the line and press F3"), Always, [&window, &board] {
        board.Command(QStringLiteral("clear faults"));
        PressF3(window);
    });
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return PanelText(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently ON-LINE"));
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return PanelText(window, 2); },
        QStringLiteral("ONLINE"));
    guide.Picture(QStringLiteral("back-online"));
}
} // namespace

void AddMainJob(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    AddOnline(guide, window);
    AddBrowse(guide, window);
    AddDump(guide, window);
    AddIdentCheck(guide, window, board);
    AddLineCut(guide, window, board);
}
