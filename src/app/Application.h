#pragma once

#include "base/FileSystem.h"
#include "base/ViewLoop.h"
#include "controls/FocusMark.h"
#include "link/RSComm.h"
#include "programset/FileOperations.h"
#include "shell/frmMDIMain.h"
#include <memory>

class HelpViews;
class PLSTransfer;
class PLSViews;
class ProcessStart;
class ReportPrinter;
class ResultViews;
class SerialPorts;
class StatusTableViews;
class TargetBoardViews;
class TimingViews;
class TransferViews;
class TrendingViews;

/// What the platform gives: the real services, or their doubles under test. All must outlive the
/// application.
struct Platform {
    Clock& clock;
    Dialogs& dialogs;
    BusyDisplay& busy;
    MSComm& port;
    const ApplicationFolder& folder;
    const Drives& drives;
    const SerialPorts& ports;
    ProcessStart& tools;
    ReportPrinter& printer;
    std::function<void()> endProgram; ///< ends the event loop
};

/// The whole program on a platform: the one place where its objects are made and handed to each
/// other, and where views are made known to the main window.
class Application {
public:
    explicit Application(const Platform& platform);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Shows the main window and runs its start-up.
    void Start();

    frmMDIMain& MainWindow() { return window_; }
    RSComm& Link() { return link_; }
    ViewLoopRunner& Loops() { return loops_; }

private:
    void RegisterViews();
    void RegisterSetViews();
    void RegisterCopy();

    const Platform platform_;
    FileSystem files_;
    DiskFileOperations fileOperations_;
    RSComm link_;
    ViewLoopRunner loops_;
    FocusMark focusMark_;
    frmMDIMain window_;
    std::unique_ptr<TransferViews> transfers_;
    std::unique_ptr<PLSTransfer> plsTransfer_;
    std::unique_ptr<StatusTableViews> statusTable_;
    std::unique_ptr<TargetBoardViews> targetBoard_;
    std::unique_ptr<TrendingViews> trending_;
    std::unique_ptr<ResultViews> results_;
    std::unique_ptr<HelpViews> help_;
    std::unique_ptr<PLSViews> pls_;
    std::unique_ptr<TimingViews> timing_;
};
