#include "tour/HelpTour.h"

#include "help/views/frmHelp.h"
#include "help/views/GuideBrowser.h"
#include "shell/frmMDIMain.h"
#include "tour/Hand.h"
#include "tour/TourGuide.h"
#include <QAction>
#include <QLineEdit>
#include <QTest>

namespace {
bool Always() {
    return true;
}

bool IsUp(const char* view) {
    return Hand::Modal() && Hand::Modal()->objectName() == QLatin1String(view);
}

frmHelp* Help() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(window); help && help->isVisible())
            return help;
    return nullptr;
}

QString HelpPage() {
    return Help() ? Help()->findChild<GuideBrowser*>()->source().fileName() : QString();
}

void AddAbout(TourGuide& guide, frmMDIMain& window) {
    guide.Stop(QStringLiteral("choose Help, About Quentor"), Always,
               [&window] { window.Commands().Action(QStringLiteral("mnuHelpAbout"))->trigger(); });
    guide.Stop(
        QStringLiteral("the about view is up"), [] { return IsUp("frmAbout"); }, [] {});
    guide.Picture(QStringLiteral("about"));
    guide.Stop(QStringLiteral("press System Info"), Always,
               [] { Hand::ClickInModal(QStringLiteral("cmdSysInfo")); });
    guide.Stop(
        QStringLiteral("the system information is up"), [] { return IsUp("frmSysInfo"); }, [] {});
    guide.Picture(QStringLiteral("system-information"));
    guide.Stop(QStringLiteral("close it"), Always,
               [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(
        QStringLiteral("close the about view"), [] { return IsUp("frmAbout"); },
        [] { Hand::ClickInModal(QStringLiteral("cmdOk")); });
    guide.Stop(QStringLiteral("the views have gone"), &Hand::NothingModal, [] {});
}

void AddGuide(TourGuide& guide, frmMDIMain& window) {
    guide.Stop(QStringLiteral("open the status table, press Ctrl+H"), Always, [&window] {
        Hand::PressButton(window, "Status");
        window.Commands().Action(QStringLiteral("mnuHelpTopics"))->trigger();
    });
    guide.Expect(QStringLiteral("the page of the guide"), &HelpPage,
                 QStringLiteral("status-table.md"));
    guide.Picture(QStringLiteral("help"));
    guide.Stop(QStringLiteral("search for a word"), Always, [] {
        if (auto* words = Help()->findChild<QLineEdit*>(QStringLiteral("txtSearch"))) {
            QTest::keyClicks(words, QStringLiteral("fault"));
            QTest::keyClick(words, Qt::Key_Return);
        }
    });
    guide.Picture(QStringLiteral("help-search"));
    guide.Stop(QStringLiteral("close the guide"), Always, [] { Help()->close(); });
}
} // namespace

void AddSplash(TourGuide& guide) {
    guide.Stop(
        QStringLiteral("the splash is up"), [] { return IsUp("frmSplash"); }, [] {});
    guide.Picture(QStringLiteral("splash"));
    guide.Stop(QStringLiteral("press a key"), Always,
               [] { QTest::keyClick(Hand::Modal(), Qt::Key_Space); });
    guide.Stop(QStringLiteral("the splash has gone"), &Hand::NothingModal, [] {});
}

void AddHelp(TourGuide& guide, frmMDIMain& window) {
    AddAbout(guide, window);
    AddGuide(guide, window);
}
