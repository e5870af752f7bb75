#include "tour/LimitSwitchTour.h"

#include "controls/grid/Grid.h"
#include "shell/frmMDIMain.h"
#include "tour/BoardProcess.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTreeWidget>

namespace {
constexpr double uploadTime = 60.0; // seconds in which all channels are read
constexpr const char* online = "mnuViewOnline";
constexpr const char* offline = "mnuViewOffline";

void Always(TourGuide& guide, const QString& what, std::function<void()> act) {
    guide.Stop(
        what, [] { return true; }, std::move(act));
}

template <typename Control>
Control* InTiming(frmMDIMain& window, const QString& name) {
    QWidget* view = window.Children().View(QStringLiteral("frmTiming"));
    return view ? view->findChild<Control*>(name) : nullptr;
}

bool IsLive(frmMDIMain& window, const char* control) {
    auto* widget = InTiming<QWidget>(window, QLatin1String(control));
    return widget && widget->isEnabled();
}

QString Cell(frmMDIMain& window, int row, int column) {
    const Grid* grid = InTiming<Grid>(window, QStringLiteral("fgPLSChannels"));
    return grid ? grid->TextMatrix(row, column) : QString();
}

void Trigger(TourGuide& guide, frmMDIMain& window, const char* entry) {
    Always(guide, QStringLiteral("choose %1").arg(QLatin1String(entry)),
           [&window, entry] { window.Commands().Action(QLatin1String(entry))->trigger(); });
}

void Type(frmMDIMain& window, const QString& name, const QString& text) {
    auto* entry = InTiming<QLineEdit>(window, name);
    entry->setFocus();
    entry->selectAll();
    QTest::keyClicks(entry, text);
    QTest::keyClick(entry, Qt::Key_Return);
}

void SelectSet(TourGuide& guide, frmMDIMain& window, const QString& set) {
    Always(guide, QStringLiteral("select ") + set, [&window, set] {
        if (auto* list = window.findChild<QListView*>(QStringLiteral("filFileList")))
            Hand::ClickRow(*list, set);
    });
}

void AddWatching(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    Trigger(guide, window, offline);
    SelectSet(guide, window, QStringLiteral("CAM1.hdn"));
    Always(guide, QStringLiteral("put an R6500(PLS) on the line"),
           [&board] { board.Replace(BoardProcess::r6500PLS); });
    Trigger(guide, window, "mnuToolsPLSProgramming");
    guide.Stop(
        QStringLiteral("the timing view is up, offline"),
        [&window] { return window.IsViewVisible(QStringLiteral("frmTiming")); }, [] {});
    guide.Picture(QStringLiteral("timing-offline"));
    Trigger(guide, window, online);
    guide.Stop(
        QStringLiteral("the channels are read"),
        [&window] {
            return Hand::NothingModal() && IsLive(window, "cmdAddSetpoint") &&
                   Cell(window, 1, 0) == QStringLiteral("CH0");
        },
        [] {}, uploadTime);
    guide.Stop(
        QStringLiteral("nothing of the configuration is live while the machine turns"),
        [&window] { return !IsLive(window, "cmdSetOffset"); }, [] {});
    guide.Picture(QStringLiteral("timing-turning"));
    Always(guide, QStringLiteral("stop the machine"),
           [&board] { board.Command(QStringLiteral("speed 0")); });
    guide.Stop(
        QStringLiteral("offset and configuration are live"),
        [&window] { return IsLive(window, "cmdSetOffset"); }, [] {});
    guide.Picture(QStringLiteral("timing-stopped"));
}

QString RowOf(frmMDIMain& window, const QString& channel) {
    const Grid* grid = InTiming<Grid>(window, QStringLiteral("fgPLSChannels"));
    for (int row = 1; grid && row < grid->Rows(); ++row)
        if (grid->TextMatrix(row, 0) == channel)
            return grid->TextMatrix(row, 1) + u'-' + grid->TextMatrix(row, 2);
    return QString();
}

// Presses a button of the view; the grid then shows what the board holds of the channel.
void Press(TourGuide& guide, frmMDIMain& window, const char* button, const QString& channel,
           const QString& setpoint) {
    Always(guide, QStringLiteral("press %1").arg(QLatin1String(button)), [&window, button] {
        QApplication::setActiveWindow(&window);
        Hand::Click(InTiming<QWidget>(window, QLatin1String(button)));
    });
    guide.Stop(
        channel + QStringLiteral(" shows ") + setpoint,
        [&window, channel, setpoint] {
            return Hand::NothingModal() && IsLive(window, "cmdAddSetpoint") &&
                   RowOf(window, channel) == setpoint;
        },
        [] {}, uploadTime);
}

void TypeSetpoint(TourGuide& guide, frmMDIMain& window, const QString& on, const QString& off) {
    Always(guide, QStringLiteral("ON %1, OFF %2").arg(on, off), [&window, on, off] {
        Type(window, QStringLiteral("txtTmg(2)"), on);
        Type(window, QStringLiteral("txtTmg(3)"), off);
    });
}

void TypeChannel(TourGuide& guide, frmMDIMain& window, const QString& channel) {
    Always(guide, QStringLiteral("channel ") + channel,
           [&window, channel] { Type(window, QStringLiteral("txtTmg(1)"), channel); });
}

void AddEditing(TourGuide& guide, frmMDIMain& window) {
    TypeChannel(guide, window, QStringLiteral("7"));
    TypeSetpoint(guide, window, QStringLiteral("100"), QStringLiteral("150"));
    Press(guide, window, "cmdAddSetpoint", QStringLiteral("CH7"), QStringLiteral("100-150"));
    TypeSetpoint(guide, window, QStringLiteral("110"), QStringLiteral("140"));
    Press(guide, window, "cmdAdjustSetpoint", QStringLiteral("CH7"), QStringLiteral("110-140"));
    TypeChannel(guide, window, QStringLiteral("6"));
    TypeSetpoint(guide, window, QStringLiteral("5"), QStringLiteral("4"));
    Press(guide, window, "cmdPulseTrain", QStringLiteral("CH6"), QStringLiteral("0-5"));
    guide.Picture(QStringLiteral("timing-edited"));
}

void AddConfiguration(TourGuide& guide, frmMDIMain& window) {
    Always(guide, QStringLiteral("speed compensation of CH00: 25"),
           [&window] { Type(window, QStringLiteral("txtPLS_CFG(2)"), QStringLiteral("25")); });
    guide.Stop(
        QStringLiteral("the change locks the channels until it is sent"),
        [&window] {
            return IsLive(window, "cmdResetPLSConfig") && !IsLive(window, "cmdAddSetpoint");
        },
        [] {});
    guide.Picture(QStringLiteral("timing-changed"));
    Press(guide, window, "cmdResetPLSConfig", QStringLiteral("CH7"), QStringLiteral("110-140"));
    guide.Expect(
        QStringLiteral("the board has taken it"),
        [&window] { return InTiming<QLineEdit>(window, QStringLiteral("txtPLS_CFG(2)"))->text(); },
        QStringLiteral("25"));
}

// Double-clicks the node of a file in the browser's tree and looks at the view that it opens.
void AddFileView(TourGuide& guide, frmMDIMain& window, const QString& extension,
                 const QString& picture) {
    Always(guide, QStringLiteral("double-click the node of the .") + extension,
           [&window, extension] {
               auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("trvHDNList"));
               const auto nodes =
                   tree->findItems(u'.' + extension, Qt::MatchContains | Qt::MatchRecursive);
               if (nodes.isEmpty())
                   return;
               const QPoint place = tree->visualItemRect(nodes.first()).center();
               QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, place);
               QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, place);
           });
    guide.Stop(
        QStringLiteral("its view is up"),
        [] { return Hand::ModalTitle().startsWith(QStringLiteral("CAM1")); }, [] {});
    guide.Picture(picture);
    Always(guide, QStringLiteral("press OK"), [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(QStringLiteral("it has gone"), &Hand::NothingModal, [] {});
}

void AddFiles(TourGuide& guide, frmMDIMain& window) {
    Trigger(guide, window, offline);
    Always(guide, QStringLiteral("close the timing view"),
           [&window] { window.Children().Hide(QStringLiteral("frmTiming")); });
    SelectSet(guide, window, QStringLiteral("CAM1.hdn"));
    AddFileView(guide, window, QStringLiteral("PCF"), QStringLiteral("pls-configuration"));
    AddFileView(guide, window, QStringLiteral("CHL"), QStringLiteral("pls-channels"));
}
} // namespace

void AddLimitSwitch(TourGuide& guide, frmMDIMain& window, BoardProcess& board) {
    AddWatching(guide, window, board);
    AddEditing(guide, window);
    AddConfiguration(guide, window);
    AddFiles(guide, window);
}
