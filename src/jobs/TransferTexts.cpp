#include "jobs/TransferTexts.h"

namespace {
constexpr int digitsOfNumber = 15; // as many as a double always keeps
}

QString NumberText(double number) {
    const QString digits = QString::number(number, 'g', digitsOfNumber).toUpper();
    return number < 0 ? digits : u' ' + digits;
}

QString DownloadingText(const QString& valueText, QChar width, qint32 address) {
    return QStringLiteral("Downloading ") + valueText + QStringLiteral(" to ") + width +
           QString::number(address);
}

QString UploadedText(const QString& valueText, qint32 address) {
    return QStringLiteral("Uploaded ") + valueText + QStringLiteral(" from B") +
           QString::number(address);
}
