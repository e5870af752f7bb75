#include "pls/PLSBoards.h"
#include "PLSViewUnderTest.h"
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTest>

// The three frames, light and dark, in a small and in a large main window: nothing may be cut. With
// the variable QUENTOR_PICTURES set to a folder they are saved there as pictures.

namespace {
QPalette DarkPalette() {
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(role, QColor(230, 230, 230));
    return dark;
}

class PLSViewLook : public testing::WithParamInterface<std::tuple<bool, QSize>>,
                    public PLSViewUnderTest {
protected:
    PLSViewLook() {
        if (std::get<0>(GetParam()))
            QApplication::setPalette(DarkPalette());
        main_.setGeometry(QRect(QPoint(), std::get<1>(GetParam())));
        main_.show();
    }
    ~PLSViewLook() override { QApplication::setPalette(QPalette()); }

    void Save(const char* extension, const char* name) {
        const QString folder = qEnvironmentVariable("QUENTOR_PICTURES");
        Show(
            extension,
            [&] {
                QApplication::processEvents();
                ExpectNothingCut();
                if (!folder.isEmpty())
                    view_->grab().save(
                        QDir(folder).filePath(QString("plsview-%1-%2-%3-%4.png")
                                                  .arg(name)
                                                  .arg(main_.width())
                                                  .arg(std::get<0>(GetParam()) ? "dark" : "light")
                                                  .arg(qRound(100 * view_->devicePixelRatioF()))));
            },
            &main_);
    }

    void ExpectNothingCut() {
        EXPECT_LE(view_->width(), main_.width());
        EXPECT_LE(view_->height(), main_.height());
        for (const auto* label : view_->findChildren<QLabel*>()) {
            if (!label->isVisible())
                continue;
            EXPECT_GE(label->width(), label->minimumSizeHint().width())
                << label->text().toStdString();
            EXPECT_GE(label->height(), label->minimumSizeHint().height())
                << label->text().toStdString();
        }
    }

    QWidget main_;
};
} // namespace

TEST_P(PLSViewLook, TheThreeFrames) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("163603012100005020030350004012000000000000000000%\r\n");
    WriteCHL(StandardCHL());
    Save("PCF", "standard");
    Save("CHL", "channels");
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF("32100050010020030040050060072550000000000000000%\r\n");
    Save("PCF", "r6500");
}

INSTANTIATE_TEST_SUITE_P(Windows, PLSViewLook,
                         testing::Combine(testing::Bool(),
                                          testing::Values(QSize(640, 480), QSize(1280, 800))));
