#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder for one test, with files of known bytes.
class SetFolder {
public:
    SetFolder() : path_(root_.path()) {}

    /// The folder itself, or the one that Enter made below it.
    const QString& Path() const { return path_; }
    QString Path(const QString& name) const { return path_ + u'/' + name; }
    /// Makes a folder below the present one and goes on there.
    void Enter(const QString& name) {
        QDir(path_).mkpath(name);
        path_ += u'/' + name;
    }

    void Make(const QString& name, const QByteArray& bytes = QByteArray()) const {
        QFile file(Path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
    /// A set with five siblings, one of them unknown to the system; each holds its own name.
    void MakeSet(const QString& base, const QByteArray& hdn = "D\r\n") const {
        Make(base + QStringLiteral(".hdn"), hdn);
        for (const char* extension : {"lmn", "HEX", "rev", "07", "keep"}) {
            const QString name = base + u'.' + QLatin1String(extension);
            Make(name, name.toUtf8());
        }
    }
    /// Bytes of a file; "(missing)" if there is none.
    QByteArray Bytes(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    /// Names of all files, hidden ones too, in name order.
    QStringList Names() const {
        return QDir(path_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir root_;
    QString path_;
};
