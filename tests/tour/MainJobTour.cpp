#include "tour/MainJobTour.h"

#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include <QListView>
#include <QRegularExpression>
#include <QTreeView>

namespace {
QString TreeRoot(frmMDIMain& window) {
    const auto* tree = window.findChild<QTreeView*>(QStringLiteral("trvHDNList"));
    return tree ? tree->model()->index(0, 0).data().toString() : QString();
}

bool Always() {
    return true;
}

void AddOnline(TourGuide& guide, frmMDIMain& window) {
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return Hand::Panel(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently OFF-LINE"));
    guide.Picture(QStringLiteral("start"));
    guide.Stop(QStringLiteral("press F3"), Always,
               [&window] { Hand::PressKey(window, Qt::Key_F3); });
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return Hand::Panel(window, 2); },
        QStringLiteral("ONLINE"));
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return Hand::Panel(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently ON-LINE"));
    guide.Picture(QStringLiteral("online"));
}

void AddBrowse(TourGuide& guide, frmMDIMain& window) {
    guide.Stop(QStringLiteral("click PUMP1.hdn in the file list"), Always, [&window] {
        if (auto* list = window.findChild<QListView*>(QStringLiteral("filFileList")))
            Hand::ClickRow(*list, QStringLiteral("PUMP1.hdn"));
    });
    guide.Expect(
        QStringLiteral("the tree's root"), [&window] { return TreeRoot(window); },
        QStringLiteral("K2012 [PUMP1]"));
    guide.Picture(QStringLiteral("browse"));
}

void AddDump(TourGuide& guide, frmMDIMain& window) {
    const QString question = QStringLiteral("Program Download - [PUMP1]");
    guide.Stop(QStringLiteral("press the toolbar's download button"), Always,
               [&window] { Hand::PressButton(window, "Program"); });
    guide.AnswerBox(question, QStringLiteral("Yes"), QStringLiteral("question"));
    guide.Stop(
        QStringLiteral("the progress shows an address"),
        [] {
            static const QRegularExpression text(
                QStringLiteral("^Writing to Program Address: 5[0-9A-F]{3}H$"));
            return text.match(Hand::BusyText()).hasMatch();
        },
        [] {}, 60.0);
    guide.Picture(QStringLiteral("dump"));
    guide.Stop(
        QStringLiteral("the end of the dump is reported"),
        [] { return Hand::ModalTitle() == QLatin1String("Program Download"); }, [] {}, 120.0);
    guide.AnswerBox(QStringLiteral("Program Download"), QStringLiteral("OK"),
                    QStringLiteral("complete"));
}

// "PUMP1" and three zeros, as eight bytes.
void AddIdentCheck(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    guide.Stop(QStringLiteral("the view has gone"), &Hand::NothingModal, [] {});
    guide.Expect(
        QStringLiteral("the board's ident"),
        [&board] { return board.Command(QStringLiteral("show 61424 8")); },
        QStringLiteral("61424: 80 85 77 80 49 0 0 0"));
    guide.Stop(QStringLiteral("press the toolbar's download button again"), Always,
               [&window] { Hand::PressButton(window, "Program"); });
    guide.AnswerBox(QStringLiteral("Program Download - [PUMP1]"), QStringLiteral("No"),
                    QStringLiteral("ident-changed"));
}

void AddLineCut(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    // With the status table on the screen the board is polled while that view is the active one.
    guide.Stop(QStringLiteral("press the status table button, cut the line"), Always,
               [&window, &board] {
                   Hand::PressButton(window, "Status");
                   board.Command(QStringLiteral("fault silence"));
               });
    guide.AnswerBox(QStringLiteral("WARNING - Communication Error!"), QStringLiteral("Cancel"),
                    QStringLiteral("line-cut"));
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return Hand::Panel(window, 1); },
        QStringLiteral("System Message:  Comm Fault with Target Board"));
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return Hand::Panel(window, 2); },
        QStringLiteral("OFFLINE"));
    guide.Picture(QStringLiteral("comm-fault"));
    guide.Stop(QStringLiteral("mend the line and press F3"), Always, [&window, &board] {
        board.Command(QStringLiteral("clear faults"));
        Hand::PressKey(window, Qt::Key_F3);
    });
    guide.Expect(
        QStringLiteral("panel 1"), [&window] { return Hand::Panel(window, 1); },
        QStringLiteral("System Message:  Quentor is Currently ON-LINE"));
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return Hand::Panel(window, 2); },
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
