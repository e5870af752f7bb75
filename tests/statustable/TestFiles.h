#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

/// A folder of files that lives as long as a test.
class TestFiles {
public:
    QString Path(const QString& name) const { return folder_.filePath(name); }
    /// Writes a file byte for byte and gives its path.
    QString Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return Path(name);
    }
    QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
    }

private:
    QTemporaryDir folder_;
};
