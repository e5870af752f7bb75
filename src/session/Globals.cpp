#include "session/Globals.h"

RSComm* gRSComm = nullptr;
MSComm* gCommControl = nullptr;
FileSystem* gFSO = nullptr;
QString gHdnFile;
QString gCurrentFolder;
QString gCurrentFile;
QStringList gCurrentFiles;
QString gCurrentDrive;
qint16 gPrintContext = PrintContext::Browser;

QStringList gTableAddresses;
QString gTableTitle;
bool gViewNicNames = false;
bool gViewDescriptions = false;
