#include "link/TransferProgress.h"

namespace {
QString DumpText(const TransferProgress& progress) {
    return progress.writingIdent
               ? QStringLiteral("Writing Program Ident ... ")
               : QStringLiteral("Writing to Program Address: ") + progress.address;
}

QString UploadText(const TransferProgress& progress) {
    return progress.readingIdent
               ? QStringLiteral("Reading Program Ident ... ")
               : QStringLiteral("Reading From Program Address: ") + progress.address;
}
} // namespace

QString TransferTextAtStart(qint16 mode) {
    switch (mode) {
    case TransferMode::Dump:
        return QStringLiteral("Sending Program at Address: ");
    case TransferMode::Upload:
        return QStringLiteral("Reading Program at Address: ");
    default:
        return QString();
    }
}

QString TransferText(qint16 mode, const TransferProgress& progress, const QString& present) {
    if (mode == TransferMode::Dump && progress.inProgramMode)
        return DumpText(progress);
    if (mode == TransferMode::Upload && progress.inUploadMode)
        return UploadText(progress);
    return present;
}
