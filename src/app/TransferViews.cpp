#include "app/TransferViews.h"

#include "app/Application.h"
#include "jobs/views/frmDataXfr.h"

TransferViews::TransferViews(const Platform& platform, RSComm& link, FileSystem& files,
                             frmMDIMain& window)
    : transfer_(link, platform.dialogs, files),
      runner_(jobs_, window.Timer().Timer(), platform.clock, &window),
      datafile_(link, window.Mode(), platform.dialogs, files, transfer_, runner_),
      command_(
          window.Programs(), link, window.Mode(), platform.dialogs, window.Timer(), window.Views(),
          [&window] { window.Commands().Run(QStringLiteral("mnuFileListPopupUploadFromPLS")); }) {
    jobs_.Register(WaitJob::TransferData,
                   [this](JobProgress& progress) { transfer_.TransferData(progress); });
    window.Views().frmDataXfr = [this, &platform_dialogs = platform.dialogs, &files, &window] {
        frmDataXfr view(platform_dialogs, files, runner_, &window);
        view.exec();
    };
    RegisterCommands(window);
}

void TransferViews::RegisterCommands(frmMDIMain& window) {
    CommandSurface& commands = window.Commands();
    const auto download = DataTransferCommand::download;
    const auto upload = DataTransferCommand::upload;
    commands.Handle(QStringLiteral("mnuFileDownloadData"),
                    [this] { command_.StartDataTransfer(download, false); });
    commands.Handle(QStringLiteral("mnuFileUploadData"),
                    [this] { command_.StartDataTransfer(upload, false); });
    commands.Handle(QStringLiteral("Download"),
                    [this] { command_.StartDataTransfer(download, true); });
    commands.Handle(QStringLiteral("Upload"), [this] { command_.StartDataTransfer(upload, true); });
    commands.Handle(QStringLiteral("mnuFileDownloadFile"),
                    [this] { datafile_.mnuFileDownloadFile_Click(); });
}
