#pragma once

class Dialogs;
class Drives;
class FileOperations;
class FileSystem;
class ProgramBrowser;
class RSComm;

/// What the views and commands that make, copy, rename and delete program sets work on. All must
/// outlive them.
struct SetFiles {
    RSComm& link;
    Dialogs& dialogs;
    const FileSystem& files;
    FileOperations& operations;
    const Drives& drives;
    ProgramBrowser& browser;
};
