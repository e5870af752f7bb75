#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder of its own for one test, gone at the end.
class TestFolder {
public:
    /// Full path of a name in the folder.
    QString Path(const QString& name = QString()) const;
    /// Writes a file, folders on the way included, and returns its path.
    QString Write(const QString& name, const QByteArray& bytes) const;
    /// The whole content of a file; empty where there is none.
    QByteArray Content(const QString& name) const;
    /// Makes a folder and returns its path.
    QString MakeFolder(const QString& name) const;
    /// Names of everything in the folder, in name order.
    QStringList Names(const QString& folder = QString()) const;

private:
    QTemporaryDir directory_;
};
