#include "help/views/frmSplash.h"

#include "base/VersionRecord.h"
#include "support/gui/ModalView.h"
#include <gtest/gtest.h>
#include <QLabel>
#include <QTest>

namespace {
// Shows the splash, acts on the part of this name (or on the view itself) and tells whether that
// closed it.
template <class Act>
bool Closes(const char* part, Act act) {
    frmSplash view;
    InModalView(QStringLiteral("frmSplash"), [&](QWidget& splash) {
        QWidget* target = *part ? PartOf<QWidget>(splash, part) : &splash;
        act(target);
        if (splash.isVisible())
            splash.close();
    });
    return view.exec() == QDialog::Accepted;
}
} // namespace

TEST(Splash, ShowsTheVersionRecord) {
    frmSplash view;
    const VersionRecord& record = ProgramVersion();
    EXPECT_EQ(PartOf<QLabel>(view, "lblProductName")->text(), record.title);
    EXPECT_EQ(PartOf<QLabel>(view, "lblVersion")->text(), record.VersionText());
    EXPECT_EQ(PartOf<QLabel>(view, "lblCopyright")->text(), record.copyright);
    EXPECT_EQ(PartOf<QLabel>(view, "lblCompany")->text(), record.company);
    EXPECT_EQ(PartOf<QLabel>(view, "lblCompanyProduct")->text(), record.product);
    EXPECT_TRUE(PartOf<QLabel>(view, "lblWarning")->text().contains(record.warning));
    EXPECT_EQ(PartOf<QLabel>(view, "lblPlatform")->text().toStdString(),
              "Windows2000, XP, Win7, 8 && 10");
    EXPECT_FALSE(PartOf<QLabel>(view, "lblClickToContinue")->text().isEmpty());
    EXPECT_FALSE(PartOf<QLabel>(view, "imgLogo")->pixmap().isNull());
}

TEST(Splash, ThePlatformsAreShownWithOneAmpersand) {
    frmSplash view;
    view.grab(); // lays its parts out
    auto* shown = PartOf<QLabel>(view, "lblPlatform");
    QLabel expected(shown->parentWidget());
    expected.setTextFormat(Qt::PlainText);
    expected.setText(QStringLiteral("Windows2000, XP, Win7, 8 & 10")); // nobody's label: as it is
    expected.setFont(shown->font());
    expected.setGeometry(shown->geometry());
    EXPECT_EQ(shown->grab().toImage(), expected.grab().toImage());
    expected.setText(QStringLiteral("Windows2000, XP, Win7, 8 10"));
    EXPECT_NE(shown->grab().toImage(), expected.grab().toImage());
}

TEST(Splash, AnyKeyClosesIt) {
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Q, Qt::Key_F3,
                           Qt::Key_Tab, Qt::Key_Down})
        EXPECT_TRUE(Closes("", [key](QWidget* view) { QTest::keyClick(view, key); })) << key;
}

TEST(Splash, AClickOnTheViewOrAnyPartClosesIt) {
    for (const char* part :
         {"", "fraSplash", "imgLogo", "lblProductName", "lblCompany", "lblCompanyProduct",
          "lblPlatform", "lblVersion", "lblCopyright", "lblWarning", "lblClickToContinue"})
        for (const auto button : {Qt::LeftButton, Qt::RightButton})
            EXPECT_TRUE(Closes(part, [button](QWidget* view) { QTest::mouseClick(view, button); }))
                << part;
}

TEST(Splash, TheMouseAloneDoesNotCloseIt) {
    EXPECT_FALSE(Closes("lblVersion", [](QWidget* view) { QTest::mouseMove(view); }));
}
