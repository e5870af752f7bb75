#pragma once

#include "help/SystemRegistry.h"
#include <memory>
#include <QDate>

class FileSystem;
class frmHelp;
class frmMDIMain;
class QWidget;
struct Platform;

/// Splash, about view and user guide, joined to the main window.
class HelpViews {
public:
    /// All must outlive the object.
    HelpViews(const Platform& platform, const FileSystem& files, frmMDIMain& window);
    ~HelpViews();

private:
    void ShowSplash();
    void ShowAbout();
    /// The suite's own help file if it is installed, else the guide on the active view's page.
    void ShowHelpTopics();
    bool HelpFileOpened();
    void StartSysInfo(QWidget& aboutView);
    void ShowReport(QWidget& aboutView);
    QString PortSettingsText() const;
    QDate Revised() const;

    const Platform& platform_;
    const FileSystem& files_;
    frmMDIMain& window_;
    MachineRegistry registry_;
    std::unique_ptr<frmHelp> help_; // made at its first use
};
