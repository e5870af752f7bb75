#include "session/Globals.h"

RSComm* gRSComm = nullptr;
MSComm* gCommControl = nullptr;
FileSystem* gFSO = nullptr;
QString gHdnFile;
QString gCurrentFolder;
QString gCurrentFile;
QStringList gCurrentFiles;
QString gCurrentDrive;
bool gNewFileAccepted = false;
qint16 gPrintContext = PrintContext::Browser;

QStringList gTableAddresses;
QString gTableTitle;
bool gViewNicNames = false;
bool gViewDescriptions = false;
qint16 gWaitJob = 0;
qint16 gXferMode = 0;
qint16 gXferBoard = 0;
QString gXferFile;
qint16 gXferFrom = 0;
qint16 gXferTo = 0;

PLSRecord gPLS;
PLSRecord gPLSSnapshot;
