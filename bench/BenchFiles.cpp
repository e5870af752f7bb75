#include "bench/BenchFiles.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

namespace bench {

void WriteFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

void WritePortSettings(const QString& folder, const QString& device, int baud) {
    const QDir directory(folder);
    directory.mkpath(QStringLiteral("Support/ports"));
    QFile::link(device, directory.filePath(QStringLiteral("Support/ports/COM1")));
    WriteFile(directory.filePath(QStringLiteral("Support/RSPort.cfg")),
              "1," + QByteArray::number(baud));
}

} // namespace bench
