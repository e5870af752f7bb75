#pragma once

#include <QByteArray>
#include <QString>

namespace bench {

/// Writes a file; raises std::runtime_error when that fails.
void WriteFile(const QString& path, const QByteArray& content);

/// Makes port 1 of the application folder `folder` the device, at `baud`, 9600 or 19200. Raises
/// std::runtime_error when that fails.
void WritePortSettings(const QString& folder, const QString& device, int baud);

} // namespace bench
