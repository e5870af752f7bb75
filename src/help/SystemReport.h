#pragma once

#include "base/SerialPorts.h"
#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

/// What a support desk asks for. Everything is text as it is to be shown.
struct SystemFacts {
    QDate revised;             ///< of the program; may be invalid
    QString applicationFolder; ///< where settings and support files are
    QString portSettings;      ///< "COM1, 9600 baud", or why it cannot be told
    QString systemName;        ///< "Debian GNU/Linux 12"
    QString kernel;            ///< "linux 6.1"
    QString processor;         ///< "x86_64"
    QString qtRunning;         ///< version of the Qt libraries that run
    QString qtBuilt;           ///< version that the program was built with
    QString windowSystem;      ///< platform and style, "xcb, fusion"
    QString language;          ///< "en_GB"
    QStringList screens;       ///< one line each, "1280 x 800 at 100 per cent"
    std::vector<FoundPort> ports;
};

/// The facts that need no window: system, Qt, language and the ports found now.
SystemFacts GatherSystemFacts(const SerialPorts& ports);

/// The report, a line per fact, then the ports; lines parted by LF.
QString SystemReport(const SystemFacts& facts);
