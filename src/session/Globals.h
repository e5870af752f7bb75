#pragma once

#include "programset/PLSRecord.h"
#include <QString>
#include <QStringList>

class FileSystem;
class MSComm;
class RSComm;

/// The named state that the whole program shares. Everything else is handed over in constructors.

/// The one link object. Written by the application at start and end; read by all views and jobs.
extern RSComm* gRSComm;
/// The serial control lent to gRSComm. Written by the application; read where the port is opened.
extern MSComm* gCommControl;
/// The file system helper. Written by the application; read by views that touch files.
extern FileSystem* gFSO;
/// Full path of the selected program set's .hdn file, empty when none. Written by the browser and
/// the commands; read by all views.
extern QString gHdnFile;
/// Folder in use. Written by start-up, browser and program set commands; scratch for these.
extern QString gCurrentFolder;
/// File in use. Written and read by browser and program set commands.
extern QString gCurrentFile;
/// Names of the files of gCurrentFolder. Written and read by delete and rename.
extern QStringList gCurrentFiles;
/// Drive (mount point) in use. Written by start-up and the browser; read by the browser.
extern QString gCurrentDrive;

/// A program set was made in frmNewFile. Written by the new-program command and that view; read by
/// the command.
extern bool gNewFileAccepted;

/// Which view the toolbar's print button serves.
namespace PrintContext {
constexpr qint16 Browser = 0;
constexpr qint16 StatusTable = 1;
constexpr qint16 Results = 2;
constexpr qint16 Trending = 3;
} // namespace PrintContext
/// Written by each view when it is activated; read by the toolbar's print button.
extern qint16 gPrintContext;

// The status table.

/// Address texts last read from or written to a table file; entry i belongs to grid row i + 2.
/// Written by the status table; read by it and by the job that fills the grid.
extern QStringList gTableAddresses;
/// File name of the table without its extension, empty for a table without a file. Written by the
/// status table; read by reports.
extern QString gTableTitle;
/// Which kind of text column 0 of the status table shows; at most one is set. Written by the
/// status table; read by its jobs and by reports.
extern bool gViewNicNames;
extern bool gViewDescriptions;
/// Code of the job that runs or ran last (WaitJob). Written by RunWaitJob; read by the busy view.
extern qint16 gWaitJob;

/// What a data transfer does.
namespace XferMode {
constexpr qint16 Download = 1; ///< data file to board
constexpr qint16 Upload = 2;   ///< board to data file
constexpr qint16 Datafile = 3; ///< the user's text file to board
} // namespace XferMode
/// Mode of the transfer. Written by the transfer commands; read by job 4 and its dialog.
extern qint16 gXferMode;
/// Board index of the program set. Written by the transfer commands; read by job 4 and its dialog.
extern qint16 gXferBoard;
/// Path of the file. Written by the transfer commands; read by job 4.
extern QString gXferFile;
/// First byte address, included; 0 for a datafile. Written by the dialog; read by job 4.
extern qint16 gXferFrom;
/// Last byte address, included; the count of items of a datafile. Written as gXferFrom.
extern qint16 gXferTo;

/// Configuration and channels of the limit switch board or file in use. Written by the readers of
/// boards and files, the jobs and the timing view; read by all of them and by the viewer.
extern PLSRecord gPLS;
/// gPLS as the last transfer left it; ConfigChanged compares the two. Written by the jobs.
extern PLSRecord gPLSSnapshot;
