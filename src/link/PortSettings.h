#pragma once

#include <QString>

/// Which port the program uses and how fast, as kept in the settings file.
struct PortSettings {
    static constexpr int lowestPort = 1;
    static constexpr int highestPort = 99;
    static constexpr qint32 slowBaud = 9600;
    static constexpr qint32 fastBaud = 19200;

    int port = lowestPort;  ///< 1 to 99
    qint32 baud = slowBaud; ///< 9600 or 19200
};

/// Reads the two comma-delimited values of the settings file; blanks around them do not matter.
/// A port outside 1 to 99 becomes the nearer of the two; a baud other than 9600 and 19200 becomes
/// 9600. Raises as TextReader, 62 when a value is missing.
PortSettings ReadPortSettings(const QString& path);

/// Makes the folder of the settings file if needed and writes port 1 and 9600 baud. Raises as
/// TextWriter.
void WriteDefaultPortSettings(const QString& path);

/// True when the settings file does not exist or holds nothing.
bool PortSettingsMissing(const QString& path);
