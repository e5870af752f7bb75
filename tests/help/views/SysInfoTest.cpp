#include "help/views/frmSysInfo.h"

#include "help/SystemReport.h"
#include "help/views/HelpParts.h"
#include "support/gui/ModalView.h"
#include <gtest/gtest.h>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

TEST(SysInfo, CopyPutsTheWholeReportOnTheClipboard) {
    QApplication::clipboard()->setText(QStringLiteral("old"));
    const QString report = QStringLiteral("Program: x\nQt: y\n\nSerial ports found:\n  none");
    frmSysInfo view(report);
    InModalView(QStringLiteral("frmSysInfo"), [&report](QWidget& info) {
        EXPECT_EQ(PartOf<QPlainTextEdit>(info, "txtReport")->toPlainText(), report);
        EXPECT_TRUE(PartOf<QPlainTextEdit>(info, "txtReport")->isReadOnly());
        EXPECT_TRUE(PartOf<QLabel>(info, "lblCopied")->text().isEmpty());
        QTest::mouseClick(PartOf<QPushButton>(info, "cmdCopy"), Qt::LeftButton);
        EXPECT_FALSE(PartOf<QLabel>(info, "lblCopied")->text().isEmpty());
        QTest::mouseClick(PartOf<QPushButton>(info, "cmdOk"), Qt::LeftButton);
    });
    EXPECT_EQ(view.exec(), QDialog::Accepted);
    EXPECT_EQ(QApplication::clipboard()->text(), report);
}

TEST(SysInfo, WindowFactsNameThePlatformAndEveryScreen) {
    SystemFacts facts;
    AddWindowFacts(facts);
    EXPECT_TRUE(facts.windowSystem.startsWith(QGuiApplication::platformName()));
    EXPECT_EQ(facts.screens.size(), QGuiApplication::screens().size());
    EXPECT_TRUE(facts.screens.first().contains(QLatin1String("per cent")));
}
