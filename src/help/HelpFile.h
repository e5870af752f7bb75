#pragma once

#include <QString>

class ApplicationFolder;
class ProcessStart;

/// Path of the suite's own help file, "Help/Halden2000.hlp" of the application folder.
QString HelpFilePath(const ApplicationFolder& folder);

/// Command line that opens a document with the viewer of the system. `kernelType` is that of
/// QSysInfo: "winnt", "darwin", otherwise a desktop with xdg-open.
QString ViewerCommand(const QString& kernelType, const QString& path);

/// Opens the suite's help file with the system's viewer if it is there; false without the file.
/// Raises FileNotFound (53) if the viewer cannot be started.
bool OpenHelpFile(const ApplicationFolder& folder, ProcessStart& tools);
