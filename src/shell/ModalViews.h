#pragma once

#include <functional>
#include <optional>
#include <QString>
#include <QtGlobal>

/// What the limit switch commands need of the jobs, the files and the timing view of these boards.
struct PLSRoute {
    std::function<void(qint16 JobCode)> RunWaitJob;
    /// Reads a set's configuration and channels; False when they cannot be had.
    std::function<bool(const QString& hdnFile)> ReadPLSFileData;
    std::function<bool()> timingVisible;        ///< frmTiming is up
    std::function<bool()> gFirstPassOnline;     ///< and has had its first pass online
    std::function<void()> DisplayPLSChannels;   ///< shows the channels in frmTiming again
    std::function<void()> uploadComplete;       ///< sets gPLSUploadComplete of frmTiming
    std::function<QString()> configurationText; ///< kept by the upload, for the .PCF file
    std::function<QString()> channelText;       ///< kept by the upload, for the .CHL file
};

/// Views that commands open, and the question at the end. Each is handed in by the application as a
/// function that shows the view; that of a modal one returns when it is closed. One that is empty
/// is not there, and the commands that need it are disabled.
struct ModalViews {
    std::function<void(qint16 mode)> frmDownloadProg; ///< 0 dumps a program, 1 uploads one
    std::function<void()> frmSplash;                  ///< shown once at the end of start-up
    std::function<void(qint16 mode)> frmNewFile;      ///< 0 a new program, 1 one to be uploaded
    std::function<void()> frmCopyFile;
    std::function<void()> frmSetupComm;
    std::function<void()> frmDataXfr; ///< asks for the range, runs the transfer
    std::function<void(const QString& hdnFile)> frmTargetBoard;
    std::function<void(const QString& hdnFile)> frmEditDoc;
    std::function<void(qint16 mode)> frmViewResults; ///< 0 compile errors, 1 a new search, 2 as is
    std::function<void()> frmAbout;
    std::function<void()> helpTopics;
    std::optional<PLSRoute> pls;
    std::function<bool()> mayClose; ///< asks about what would be lost; false keeps the program open
};
