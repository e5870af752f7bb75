#pragma once

#include <QString>

/// Which way a program goes while the progress dialog is up.
namespace TransferMode {
constexpr qint16 Dump = 0;
constexpr qint16 Upload = 1;
} // namespace TransferMode

/// What the link tells of a transfer while it runs.
struct TransferProgress {
    bool inProgramMode = false;
    bool writingIdent = false;
    bool inUploadMode = false;
    bool readingIdent = false;
    QString address; ///< of the record in transfer, "2000H"
};

/// Text of the progress label before the first byte; empty for no mode.
QString TransferTextAtStart(qint16 mode);

/// Text of the progress label while the transfer runs; `present` when there is nothing to tell.
QString TransferText(qint16 mode, const TransferProgress& progress, const QString& present);
