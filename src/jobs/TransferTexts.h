#pragma once

#include <QString>

/// The number text of a transfer, for the board and for labels: a leading blank (a minus sign for
/// a negative number) and the number with up to 15 digits: " 12", "-5", " 2.5".
QString NumberText(double number);

/// "Downloading  12 to B100": `valueText` is a number text, `width` 'B', 'W' or 'D'.
QString DownloadingText(const QString& valueText, QChar width, qint32 address);
/// "Uploaded  12 from B100".
QString UploadedText(const QString& valueText, qint32 address);
