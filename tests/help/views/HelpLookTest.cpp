#include "help/RevisionDate.h"
#include "help/SystemReport.h"
#include "help/views/frmAbout.h"
#include "help/views/frmHelp.h"
#include "help/views/frmSplash.h"
#include "help/views/frmSysInfo.h"
#include "help/views/HelpParts.h"
#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

// With QUENTOR_PICTURES set to a folder each view also leaves a picture there.

namespace {
QPalette DarkPalette() {
    QPalette palette(QColor(0x2d, 0x2f, 0x33), QColor(0x24, 0x26, 0x2a));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

bool IsDark() {
    constexpr int middle = 128;
    return QApplication::palette().color(QPalette::Window).lightness() < middle;
}

/// On light and on dark ground.
class HelpLook : public testing::TestWithParam<bool> {
protected:
    HelpLook() {
        if (GetParam())
            QApplication::setPalette(DarkPalette());
    }
    ~HelpLook() override { QApplication::setPalette(QPalette()); }
};
INSTANTIATE_TEST_SUITE_P(LightAndDark, HelpLook, testing::Bool());

void TakePicture(QWidget& view) {
    const QString folder = qEnvironmentVariable("QUENTOR_PICTURES");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(
            view.grab().save(QStringLiteral("%1/%2-%3-%4.png")
                                 .arg(folder, view.objectName(),
                                      IsDark() ? QStringLiteral("dark") : QStringLiteral("light"))
                                 .arg(qRound(100 * view.devicePixelRatioF()))));
    }
}

// No text of a label or button is cut off.
void ExpectRoomForTexts(QWidget& view) {
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    for (const QLabel* label : view.findChildren<QLabel*>()) {
        if (!label->isVisible())
            continue;
        const int wanted =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        EXPECT_GE(label->height(), wanted) << label->text().toStdString();
        if (!label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
    }
    for (const QAbstractButton* button : view.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && !qobject_cast<QLineEdit*>(button->parentWidget())) {
            EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        }
    }
    const QRect screen = view.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(view.geometry())) << view.objectName().toStdString();
    TakePicture(view);
}

SystemFacts Facts() {
    SystemFacts facts;
    facts.revised = QDate(2026, 2, 3);
    facts.applicationFolder = QStringLiteral("/home/engineer/.local/share/quentor");
    facts.portSettings = QStringLiteral("COM33, 9600 baud");
    facts.systemName = QStringLiteral("Debian GNU/Linux 12 (bookworm)");
    facts.kernel = QStringLiteral("linux 6.1.0");
    facts.processor = QStringLiteral("x86_64");
    facts.qtRunning = QStringLiteral("6.4.2");
    facts.qtBuilt = QStringLiteral("6.4.2");
    facts.language = QStringLiteral("en_GB");
    facts.ports = {{1, QStringLiteral("/dev/ttyS0"), QString()},
                   {33, QStringLiteral("/dev/ttyUSB0"), QStringLiteral("USB serial adapter")}};
    AddWindowFacts(facts);
    return facts;
}
} // namespace

TEST_P(HelpLook, TheSplashHasRoomForItsTexts) {
    frmSplash view;
    ExpectRoomForTexts(view);
}

TEST_P(HelpLook, TheAboutViewHasRoomForItsTexts) {
    frmAbout view({QDate(2026, 2, 3), [](QWidget&) {}});
    ExpectRoomForTexts(view);
}

TEST_P(HelpLook, TheSystemInformationHasRoomForItsTexts) {
    frmSysInfo view(SystemReport(Facts()));
    ExpectRoomForTexts(view);
}

TEST_P(HelpLook, TheHelpWindowHasRoomForItsTexts) {
    frmHelp view;
    view.ShowView(QStringLiteral("frmStatusTable"));
    ExpectRoomForTexts(view);
    QTest::keyClicks(view.findChild<QLineEdit*>(QStringLiteral("txtSearch")),
                     QStringLiteral("board"));
    view.setObjectName(QStringLiteral("frmHelp-search"));
    ExpectRoomForTexts(view);
}
