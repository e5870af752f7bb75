#include "help/views/frmAbout.h"

#include "base/VersionRecord.h"
#include "help/RevisionDate.h"
#include "support/gui/ModalView.h"
#include <gtest/gtest.h>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {
const QDate revised(2026, 2, 3);

QString Text(QWidget& view, const char* label) {
    return PartOf<QLabel>(view, label)->text();
}
} // namespace

TEST(About, ShowsVersionDateAndSupport) {
    frmAbout view({revised, [](QWidget&) {}});
    const VersionRecord& record = ProgramVersion();
    EXPECT_EQ(view.windowTitle().toStdString(), "About Quentor");
    EXPECT_EQ(Text(view, "lblTitle"), record.title);
    EXPECT_EQ(Text(view, "lblVersion"), record.VersionText());
    EXPECT_EQ(Text(view, "lblRevisionDate"), RevisionText(revised));
    EXPECT_TRUE(Text(view, "lblDescription").startsWith(record.description));
    EXPECT_TRUE(Text(view, "lblDescription").contains(record.copyright));
    EXPECT_TRUE(Text(view, "lblTechSupport").startsWith(QLatin1String("Technical Support:")));
    EXPECT_TRUE(Text(view, "lblTechSupport").contains(record.technicalHelp));
    EXPECT_FALSE(PartOf<QLabel>(view, "imgLogo")->pixmap().isNull());
}

TEST(About, StandsInTheMiddleOfTheMainWindow) {
    QWidget window;
    window.setGeometry(40, 30, 700, 500);
    window.show();
    frmAbout view({revised, [](QWidget&) {}}, &window);
    const QPoint off = view.geometry().center() - window.geometry().center();
    EXPECT_LE(off.manhattanLength(), 4);
}

TEST(About, OkAndReturnAndEscapeCloseIt) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Escape}) {
        frmAbout view({revised, [](QWidget&) {}});
        InModalView(QStringLiteral("frmAbout"),
                    [key](QWidget& about) { QTest::keyClick(&about, key); });
        view.exec();
        EXPECT_FALSE(view.isVisible());
    }
    frmAbout view({revised, [](QWidget&) {}});
    InModalView(QStringLiteral("frmAbout"), [](QWidget& about) {
        QTest::mouseClick(PartOf<QPushButton>(about, "cmdOk"), Qt::LeftButton);
    });
    EXPECT_EQ(view.exec(), QDialog::Accepted);
}

TEST(About, SystemInfoStartsTheInformationToolOverTheView) {
    QWidget* over = nullptr;
    frmAbout view({revised, [&over](QWidget& about) { over = &about; }});
    InModalView(QStringLiteral("frmAbout"), [](QWidget& about) {
        QTest::mouseClick(PartOf<QPushButton>(about, "cmdSysInfo"), Qt::LeftButton);
        EXPECT_TRUE(about.isVisible());
        about.close();
    });
    view.exec();
    EXPECT_EQ(over, &view);
}
