#include "ViewUnderTest.h"

#include <QApplication>
#include <QDir>

// The four pages, online and offline, light and dark: nothing may be cut. With the variable
// QUENTOR_PICTURES set to a folder the pages are saved there as pictures.

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

class TargetBoardLook : public testing::TestWithParam<bool>, public ViewUnderTest {
protected:
    TargetBoardLook() : ViewUnderTest(54) {
        if (GetParam())
            QApplication::setPalette(DarkPalette());
        WriteSupport("FaultErrCodes.txt", "10,CO-CPU slot is empty\r\n42,No communication\r\n");
        WriteSupport("CommErrCodes.txt", "00,No error\r\n05,Answer came from another address\r\n");
        files.Write("PUMP.rev", "PUMP01:507\r\n");
        files.Write("PUMP.hex", "00");
        Poke(8176, 0x10);
        Poke(8177, 0x10);
        Poke(8179, 0x05);
    }
    ~TargetBoardLook() override { QApplication::setPalette(QPalette()); }

    void SavePages(const char* state) {
        const QString folderOfPictures = qEnvironmentVariable("QUENTOR_PICTURES");
        for (int tab = 0; tab < 4; ++tab) {
            ClickTab(tab);
            QCoreApplication::processEvents();
            ExpectNothingCut();
            if (!folderOfPictures.isEmpty())
                view.grab().save(QDir(folderOfPictures)
                                     .filePath(QString("targetboard-%1-%2-%3-%4.png")
                                                   .arg(tab)
                                                   .arg(state, GetParam() ? "dark" : "light")
                                                   .arg(qRound(100 * view.devicePixelRatioF()))));
        }
    }

    void ExpectNothingCut() {
        auto* tabs = Find<QTabBar>("tabTargetBoard");
        EXPECT_LE(tabs->tabRect(3).right(), tabs->width());
        for (const auto* label : view.findChildren<QLabel*>()) {
            if (!label->isVisible())
                continue;
            EXPECT_GE(label->width(), label->wordWrap() ? 0 : label->minimumSizeHint().width())
                << label->text().toStdString();
            const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->minimumSizeHint().height();
            EXPECT_GE(label->height(), needed) << label->text().toStdString();
        }
        for (const auto* button : view.findChildren<QPushButton*>()) {
            if (button->isVisible() && button->objectName() != "cmdDefault") {
                EXPECT_GE(button->width(), button->minimumSizeHint().width());
            }
        }
    }
};
} // namespace

TEST_P(TargetBoardLook, PagesOnlineAndOffline) {
    Show([this] {
        UntilPolled();
        SavePages("online");
        CutLine();
        Until([this] { return Button("cmdGoOnline")->isEnabled(); });
        SavePages("offline");
    });
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, TargetBoardLook, testing::Bool());
