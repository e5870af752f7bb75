#include "link/DumpPrompt.h"

#include <QStringList>

QString DumpQuestion(const ProgramIdent& onDisk, const QString& boardName,
                     const ProgramIdent& inBoard) {
    const QStringList lines = {
        QStringLiteral("Program to be loaded into module (on disk):"),
        QStringLiteral("  Program Ident: \t\t") + onDisk.ident,
        QStringLiteral("  Program Revision: \t\t") + onDisk.revision,
        QStringLiteral("  Program Checksum: \t") + onDisk.checksum,
        QStringLiteral("  Target Board: \t\t") + boardName,
        QString(),
        QStringLiteral("Program currently loaded in module:"),
        QStringLiteral("  Program Ident: \t\t") + inBoard.ident,
        QStringLiteral("  Program Revision: \t\t") + inBoard.revision,
        QStringLiteral("  Program Checksum: \t") + inBoard.checksum,
        QString(),
        QStringLiteral("Entire program file will be dumped to the PLC."),
        QStringLiteral("All outputs are off while program dump occurrs."),
        QString(),
        QStringLiteral("Do You Wish to Continue?"),
    };
    return lines.join(QStringLiteral("\r\n"));
}

QString InvalidProgramText() {
    return QStringLiteral("Currently Selected Program is Invalid.\r\n\r\nProgram Download Halted!");
}
