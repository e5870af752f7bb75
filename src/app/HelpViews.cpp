#include "app/HelpViews.h"

#include "app/Application.h"
#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "base/VersionRecord.h"
#include "help/HelpFile.h"
#include "help/RevisionDate.h"
#include "help/SystemInfo.h"
#include "help/SystemReport.h"
#include "help/views/frmAbout.h"
#include "help/views/frmHelp.h"
#include "help/views/frmSplash.h"
#include "help/views/frmSysInfo.h"
#include "help/views/HelpParts.h"
#include "link/PortSettings.h"
#include <QCoreApplication>

HelpViews::HelpViews(const Platform& platform, const FileSystem& files, frmMDIMain& window)
    : platform_(platform), files_(files), window_(window) {
    window_.Views().frmSplash = [this] { ShowSplash(); };
    window_.Views().frmAbout = [this] { ShowAbout(); };
    window_.Views().helpTopics = [this] { ShowHelpTopics(); };
}

HelpViews::~HelpViews() = default;

void HelpViews::ShowSplash() {
    frmSplash view(&window_);
    view.exec();
    window_.activateWindow(); // not every window system gives the input back by itself
}

void HelpViews::ShowAbout() {
    frmAbout view({Revised(), [this](QWidget& about) { StartSysInfo(about); }}, &window_);
    view.exec();
}

QDate HelpViews::Revised() const {
    return RevisionDate(platform_.folder, QCoreApplication::applicationFilePath());
}

void HelpViews::ShowHelpTopics() {
    if (HelpFileOpened())
        return;
    if (!help_)
        help_ = std::make_unique<frmHelp>();
    help_->ShowView(window_.ActiveChildName());
}

// A help file that nothing can show leaves the user with the guide.
bool HelpViews::HelpFileOpened() {
    try {
        return OpenHelpFile(platform_.folder, platform_.tools);
    } catch (const RunTimeError& error) {
        ShowErrorBox(platform_.dialogs, error, QStringLiteral("Help Topics"), MsgStyle::Critical);
        return false;
    }
}

void HelpViews::StartSysInfo(QWidget& aboutView) {
    ::StartSysInfo({registry_, files_, platform_.tools, platform_.dialogs,
                    [this, &aboutView] { ShowReport(aboutView); }});
}

void HelpViews::ShowReport(QWidget& aboutView) {
    SystemFacts facts = GatherSystemFacts(platform_.ports);
    facts.revised = Revised();
    facts.applicationFolder = platform_.folder.Root();
    facts.portSettings = PortSettingsText();
    AddWindowFacts(facts);
    frmSysInfo view(SystemReport(facts), &aboutView);
    view.exec();
}

QString HelpViews::PortSettingsText() const {
    try {
        const PortSettings settings =
            LoadPortSettings(platform_.folder.Path(QStringLiteral("Support/RSPort.cfg")));
        return QStringLiteral("COM%1, %2 baud").arg(settings.port).arg(settings.baud);
    } catch (const RunTimeError& error) {
        return error.Description();
    }
}
