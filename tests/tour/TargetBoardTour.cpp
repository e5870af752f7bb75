#include "tour/TargetBoardTour.h"

#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include <array>
#include <QDate>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>

namespace {
constexpr std::array pages{"faults", "ident", "network", "clock"};

void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

// Text of a label, an entry or a box of the view, with a mark if it is disabled.
QString Shown(const QString& name) {
    const auto* control = Hand::InModal<QWidget>(name);
    if (!control)
        return QStringLiteral("(not there)");
    const auto* label = qobject_cast<const QLabel*>(control);
    const auto* entry = qobject_cast<const QLineEdit*>(control);
    const auto* box = qobject_cast<const QPlainTextEdit*>(control);
    const QString text = label   ? label->text()
                         : entry ? entry->text()
                         : box   ? box->toPlainText()
                                 : QString();
    return control->isEnabled() ? text : text + QStringLiteral(" (disabled)");
}

void ExpectShown(TourGuide& guide, const char* name, const QString& wanted) {
    const QString control = QLatin1String(name);
    guide.Expect(
        control, [control] { return Shown(control); }, wanted);
}

void ExpectBytes(TourGuide& guide, BoardProcess& board, const QString& what, const char* command,
                 const QString& wanted) {
    guide.Expect(
        what, [&board, command] { return board.Command(QLatin1String(command)); }, wanted);
}

void OpenPage(TourGuide& guide, int page) {
    Always(guide, QStringLiteral("click tab %1").arg(page + 1), [page] {
        auto* tabs = Hand::InModal<QTabBar>(QStringLiteral("tabTargetBoard"));
        if (tabs)
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(page).center());
    });
    const QString frame = QStringLiteral("fraTargetBoard(%1)").arg(page);
    guide.Stop(
        QStringLiteral("its page is up"),
        [frame] {
            return Hand::InModal<QWidget>(frame) && Hand::InModal<QWidget>(frame)->isVisible();
        },
        [] {});
}

void Picture(TourGuide& guide, int page, const char* state) {
    guide.Picture(
        QStringLiteral("board-%1-%2")
            .arg(QLatin1String(pages.at(static_cast<std::size_t>(page))), QLatin1String(state)));
}

// LINE2 is a K2016: this simulated board has the memory of one, but its clock stands.
void AddOpening(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("give the board a last fault and a clock, select LINE2.hdn"),
           [&window, &board] {
               board.Command(QStringLiteral("set 8177 69"));
               board.Command(QStringLiteral("set 43008 41 0 30 0 8 0 0 24 12 27"));
               if (auto* list = window.findChild<QListView*>(QStringLiteral("filFileList")))
                   Hand::ClickRow(*list, QStringLiteral("LINE2.hdn"));
           });
    Always(guide, QStringLiteral("press the target board button"),
           [&window] { Hand::PressButton(window, "PLC"); });
    guide.Expect(QStringLiteral("the view's title"), &Hand::ModalTitle,
                 QStringLiteral("Target Board Interface"));
}

void AddOnlineFaults(TourGuide& guide) {
    ExpectShown(guide, "lblTargetBoard(0)", QStringLiteral("Current Fault: Code = 00H"));
    ExpectShown(guide, "lblTargetBoard(1)", QStringLiteral("Last Fault: Code = 45H"));
    ExpectShown(guide, "txtTargetBoard(3)",
                QStringLiteral("User program executed an sfunc09() system fault function call.  "
                               "See User program for details on source of fault and corrective "
                               "action."));
}

void AddOnlinePages(TourGuide& guide, BoardProcess& board) {
    AddOnlineFaults(guide);
    Picture(guide, 0, "online");
    OpenPage(guide, 1);
    ExpectShown(guide, "lblRevIdentInPLC(0)", QStringLiteral("PUMP1   "));
    ExpectShown(guide, "lblRevIdentOnDisk(0)", QStringLiteral("LINE2"));
    ExpectShown(guide, "lblRevIdentOnDisk(3)", QStringLiteral("K2016"));
    Picture(guide, 1, "online");
    OpenPage(guide, 2);
    ExpectShown(guide, "txtSetup(0)", QStringLiteral("01"));
    Always(guide, QStringLiteral("type 17 and Return"),
           [] { Hand::TypeOver(QStringLiteral("txtSetup(0)"), QStringLiteral("17")); });
    ExpectBytes(guide, board, QStringLiteral("the address in the board"), "show 8180",
                QStringLiteral("8180: 17"));
    ExpectShown(guide, "txtSetup(0)", QStringLiteral("17"));
    Picture(guide, 2, "online");
}

void AddOnlineClock(TourGuide& guide, BoardProcess& board) {
    OpenPage(guide, 3);
    ExpectShown(guide, "txtSetup(2)", QStringLiteral("08"));
    ExpectShown(guide, "txtSetup(3)", QStringLiteral("30"));
    ExpectShown(guide, "txtSetup(5)", QStringLiteral("12"));
    ExpectShown(guide, "txtSetup(7)", QStringLiteral("27"));
    Picture(guide, 3, "online");
    Always(guide, QStringLiteral("press Set to Current Date"),
           [] { Hand::ClickInModal(QStringLiteral("cmdSetToCurrDate")); });
    const QDate today = QDate::currentDate();
    ExpectBytes(guide, board, QStringLiteral("the date in the board"), "show 43015 3",
                QStringLiteral("43015: %1 %2 %3")
                    .arg(today.day())
                    .arg(today.month())
                    .arg(today.year() % 100));
}

void AddOfflinePages(TourGuide& guide, BoardProcess& board) {
    Always(guide, QStringLiteral("cut the line"),
           [&board] { board.Command(QStringLiteral("fault silence")); });
    guide.AnswerBox(QStringLiteral("WARNING - Communication Error!"), QStringLiteral("Cancel"));
    ExpectShown(guide, "txtSetup(2)", QStringLiteral("08 (disabled)"));
    Picture(guide, 3, "offline");
    OpenPage(guide, 2);
    ExpectShown(guide, "txtSetup(0)", QStringLiteral("17 (disabled)"));
    Picture(guide, 2, "offline");
    OpenPage(guide, 1);
    ExpectShown(guide, "lblRevIdentInPLC(0)", QStringLiteral("PUMP1    (disabled)"));
    Picture(guide, 1, "offline");
    OpenPage(guide, 0);
    for (const char* box : {"txtTargetBoard(0)", "txtTargetBoard(1)", "txtTargetBoard(3)",
                            "txtTargetBoard(4)", "txtTargetBoard(5)"})
        ExpectShown(guide, box, QStringLiteral("Cannot Communicate with Target Board."));
    Picture(guide, 0, "offline");
}

void AddReturn(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Always(guide, QStringLiteral("mend the line, press Go Online"), [&board] {
        board.Command(QStringLiteral("clear faults"));
        Hand::ClickInModal(QStringLiteral("cmdGoOnline"));
    });
    AddOnlineFaults(guide);
    Always(guide, QStringLiteral("press OK"), [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(QStringLiteral("the view has gone"), &Hand::NothingModal, [] {});
    guide.Expect(
        QStringLiteral("panel 2"), [&window] { return Hand::Panel(window, 2); },
        QStringLiteral("ONLINE"));
}
} // namespace

void AddTargetBoard(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    AddOpening(guide, window, board);
    AddOnlinePages(guide, board);
    AddOnlineClock(guide, board);
    AddOfflinePages(guide, board);
    AddReturn(guide, window, board);
}
