#include "base/VersionRecord.h"
#include "help/HelpFile.h"
#include "help/RevisionDate.h"
#include "help/views/frmHelp.h"
#include "help/views/GuideBrowser.h"
#include "support/gui/ModalView.h"
#include "WholeProgram.h"
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

namespace {
class HelpCommands : public WholeProgram {
protected:
    /// The help window; null if none is up.
    static frmHelp* Help() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<frmHelp*>(window); help && help->isVisible())
                return help;
        return nullptr;
    }
    /// File of the page that the help window shows.
    static std::string Page() {
        return Help() ? Help()->findChild<GuideBrowser*>()->source().fileName().toStdString()
                      : "(no help window)";
    }
    void PressHelpKey() {
        Window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
        QTest::keyClick(&Window(), Qt::Key_H, Qt::ControlModifier);
    }
    void WriteAppFile(const QString& name) {
        QDir().mkpath(QFileInfo(AppPath(name)).path());
        QFile file(AppPath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("content");
    }
};
} // namespace

TEST_F(HelpCommands, TheSplashIsUpAtTheStartAndAKeyGoesOn) {
    Stop();
    bool timerRan = false;
    bool tableUp = false;
    application_ = std::make_unique<Application>(
        Platform{clock_, dialogs_, busy_, port_, *folder_, drives_, ports_, tools_, [] {}});
    InModalView(QStringLiteral("frmSplash"), [&](QWidget& splash) {
        timerRan = Window().Timer().Enabled();
        tableUp = Window().Children().IsVisible(QStringLiteral("frmStatusTable"));
        Tick();
        QTest::keyClick(&splash, Qt::Key_A);
    });
    application_->Start();
    EXPECT_TRUE(timerRan);
    EXPECT_TRUE(tableUp);
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Quentor is Currently OFF-LINE");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(HelpCommands, HelpOpensOnThePageOfTheActiveView) {
    Press("Status");
    PressHelpKey();
    EXPECT_EQ(Page(), "status-table.md");
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    PressHelpKey();
    EXPECT_EQ(Page(), "browser.md");
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(HelpCommands, HelpLeavesTheActiveViewWhatItIs) {
    Press("Status");
    PressHelpKey();
    ASSERT_NE(Help(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Help()));
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmStatusTable");
}

TEST_F(HelpCommands, TheHelpWindowGoesWithTheProgram) {
    PressHelpKey();
    ASSERT_NE(Help(), nullptr);
    Stop();
    EXPECT_EQ(Help(), nullptr);
}

TEST_F(HelpCommands, TheHelpFileOfTheSuiteIsOpenedWhereItIsThere) {
    WriteAppFile(QStringLiteral("Help/Halden2000.hlp"));
    PressHelpKey();
    ASSERT_EQ(tools_.commands.size(), 1);
    EXPECT_EQ(
        tools_.commands.first(),
        ViewerCommand(QSysInfo::kernelType(), AppPath(QStringLiteral("Help/Halden2000.hlp"))));
    EXPECT_EQ(Help(), nullptr);
}

TEST_F(HelpCommands, AHelpFileThatNothingCanShowLeavesTheGuide) {
    WriteAppFile(QStringLiteral("Help/Halden2000.hlp"));
    tools_.fails = true;
    dialogs_.ExpectBox("Error Number = 53\r\n\r\nFile not found", MsgStyle::Critical, "Help Topics",
                       MsgAnswer::Ok);
    PressHelpKey();
    EXPECT_NE(Help(), nullptr);
}

TEST_F(HelpCommands, AboutShowsTheDateOfTheProgramInTheApplicationFolder) {
    WriteAppFile(QStringLiteral("Quentor.exe"));
    QFile file(AppPath(QStringLiteral("Quentor.exe")));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDate date(2024, 5, 6);
    ASSERT_TRUE(file.setFileTime(QDateTime(date, QTime(12, 0)), QFile::FileModificationTime));
    file.close();
    WhenUp("frmAbout", [date](QWidget& about) {
        EXPECT_EQ(PartOf<QLabel>(about, "lblRevisionDate")->text(), RevisionText(date));
        ClickButton(about, "cmdOk");
    });
    Entry(QStringLiteral("mnuHelpAbout"))->trigger();
}

TEST_F(HelpCommands, SystemInfoShowsAndCopiesWhatASupportDeskAsksFor) {
    ports_.found = {{7, QStringLiteral("/dev/ttyTest"), QStringLiteral("test adapter")}};
    WriteAppFile(QStringLiteral("support/RSPort.cfg"));
    QFile settings(AppPath(QStringLiteral("support/RSPort.cfg")));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("7, 19200 \r\n");
    settings.close();
    QString shown;
    WhenUp("frmAbout", [](QWidget& about) { ClickButton(about, "cmdSysInfo"); });
    WhenUp("frmSysInfo", [&shown](QWidget& info) {
        shown = PartOf<QPlainTextEdit>(info, "txtReport")->toPlainText();
        ClickButton(info, "cmdCopy");
        ClickButton(info, "cmdOk");
    });
    WhenUp("frmAbout", [](QWidget& about) { ClickButton(about, "cmdOk"); });
    Entry(QStringLiteral("mnuHelpAbout"))->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), shown);
    for (const QString& fact :
         {ProgramVersion().Number(), QString::fromLatin1(qVersion()), QSysInfo::prettyProductName(),
          QStringLiteral("/dev/ttyTest, test adapter"), QStringLiteral("COM7, 19200 baud"),
          folder_->Root()})
        EXPECT_TRUE(shown.contains(fact)) << fact.toStdString();
}

TEST_F(HelpCommands, UnreadableSettingsAreNamedInTheReport) {
    WriteAppFile(QStringLiteral("support/RSPort.cfg"));
    QString shown;
    WhenUp("frmAbout", [](QWidget& about) { ClickButton(about, "cmdSysInfo"); });
    WhenUp("frmSysInfo", [&shown](QWidget& info) {
        shown = PartOf<QPlainTextEdit>(info, "txtReport")->toPlainText();
        ClickButton(info, "cmdOk");
    });
    WhenUp("frmAbout", [](QWidget& about) { ClickButton(about, "cmdOk"); });
    Entry(QStringLiteral("mnuHelpAbout"))->trigger();
    EXPECT_TRUE(shown.contains(QLatin1String("Port settings:      Input past end of file")))
        << shown.toStdString();
}
