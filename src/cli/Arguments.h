#pragma once

#include <optional>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct Arguments {
    QString command;
    QStringList operands;        ///< what stands behind the command
    QString set;                 ///< --set: path of a .hdn file; empty without
    std::optional<qint16> model; ///< --model: board index
    QString port;                ///< --port: a number or the path of a device; empty without
    std::optional<qint32> baud;  ///< --baud: 9600 or 19200
    std::optional<qint16> from;  ///< --from: byte address, 0 or more
    std::optional<qint16> to;    ///< --to: likewise
    bool yes = false;            ///< --yes: all questions are answered so
    bool json = false;           ///< --json: the result is one object
};

/// The command line as read. With `text` the user wants only that, on standard output; with `error`
/// nothing can be done.
struct ParsedArguments {
    Arguments arguments;
    QString text;
    QString error;
};

/// Reads the words of a command line, the program's name first. The commands are those of
/// Commands.h; how many operands a command takes is its own matter. Raises nothing.
ParsedArguments ParseArguments(const QStringList& words);
