#pragma once

#include <QString>

class ApplicationFolder;

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

/// The settings to show to the user: port 1 and 9600 baud where nothing is stored, else as
/// ReadPortSettings. Raises as that.
PortSettings LoadPortSettings(const QString& path);

/// Makes the folder of the settings file if needed and writes the line "7, 19200 ". Raises as
/// TextWriter, 75 if the folder cannot be made.
void SavePortSettings(const QString& path, const PortSettings& settings);

/// Writes the port number less 1 into "HALDEN.SFG" of each of the folders of the suite's tools
/// that exists; `port` 1 to 99. Raises as TextWriter.
void WriteToolPortFiles(const ApplicationFolder& folder, int port);

/// The port that a typed text stands for, held within 1 to 99; 1 for a text without a number.
int PortOfText(const QString& text);
/// Whether a typed text is a number within 1 to 99.
bool IsPortText(const QString& text);
