#include "TimingUnderTest.h"

#include "controls/grid/Grid.h"
#include <QApplication>
#include <QDir>

// The view in its states, both layouts, light and dark: nothing may be cut. With the variable
// QUENTOR_PICTURES set to a folder each is saved there as a picture.

namespace {
QPalette DarkPalette() {
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(role, QColor(230, 230, 230));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    return dark;
}

struct Look {
    bool dark;
    int model;
};

class TimingLook : public TimingUnderTest, public testing::WithParamInterface<Look> {
protected:
    TimingLook() : TimingUnderTest(GetParam().model) {
        if (GetParam().dark)
            QApplication::setPalette(DarkPalette());
    }
    ~TimingLook() override { QApplication::setPalette(QPalette()); }

    void Save(const char* state) {
        QCoreApplication::processEvents();
        ExpectNothingCut();
        const QString pictures = qEnvironmentVariable("QUENTOR_PICTURES");
        if (pictures.isEmpty())
            return;
        view.grab().save(QDir(pictures).filePath(QString("timing-%1-%2-%3-%4.png")
                                                     .arg(state, GetParam().dark ? "dark" : "light")
                                                     .arg(GetParam().model)
                                                     .arg(qRound(100 * view.devicePixelRatioF()))));
    }
    void ExpectNothingCut() {
        for (const auto* label : view.findChildren<QLabel*>()) {
            if (label->isVisible()) {
                EXPECT_GE(label->width(), label->minimumSizeHint().width())
                    << label->text().toStdString();
                EXPECT_GE(label->height(), label->minimumSizeHint().height())
                    << label->text().toStdString();
            }
        }
        for (const auto* button : view.findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty()) {
                EXPECT_GE(button->width(), button->minimumSizeHint().width())
                    << button->objectName().toStdString();
            }
        }
    }
};
} // namespace

TEST_P(TimingLook, OfflineStoppedAndTurning) {
    Open();
    EXPECT_LE(view.width(), 1000); // fits into a main window of 1024 by 700
    EXPECT_LE(view.height(), 560);
    Save("offline");
    board.StartDemo();
    SetSpeed(0);
    GoOnline();
    ClickCell(2, 1);
    Save("stopped");
    SetSpeed(20);
    Rounds();
    Save("turning");
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, TimingLook,
                         testing::Values(Look{false, k2041}, Look{true, k2041}, Look{false, r6500},
                                         Look{true, r6500}, Look{false, r6041}));
