#pragma once

#include <QString>

/// A word of a command line as Shell takes it apart again: in quotes if it holds a blank, each
/// quote that belongs to it as three.
QString CommandWord(const QString& word);

/// The seam for starting other programs.
class ProcessStart {
public:
    virtual ~ProcessStart();
    /// Starts a command line and does not wait for it. `windowStyle` 1 is normal, 3 maximised,
    /// both with focus. Raises FileNotFound (53) if the program cannot be started.
    virtual void Shell(const QString& command, int windowStyle) = 0;
};

/// Starts processes of the machine.
class SystemProcessStart final : public ProcessStart {
public:
    void Shell(const QString& command, int windowStyle) override;
};
