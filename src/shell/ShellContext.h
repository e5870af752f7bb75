#pragma once

#include <functional>

class ApplicationFolder;
class Clock;
class Dialogs;
class Drives;
class FileOperations;
class FileSystem;
class MSComm;
class RSComm;

/// What the main window is built on. All must outlive it.
struct ShellContext {
    RSComm& link;
    MSComm& port;
    Dialogs& dialogs;
    Clock& clock;
    const ApplicationFolder& folder;
    FileSystem& files;
    FileOperations& fileOperations;
    const Drives& drives;
    std::function<void()> endProgram; ///< called once, at the end of the shut-down
};
