#include "support/TestFolder.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>

QString TestFolder::Path(const QString& name) const {
    return name.isEmpty() ? directory_.path() : directory_.filePath(name);
}

QString TestFolder::Write(const QString& name, const QByteArray& bytes) const {
    MakeFolder(QFileInfo(name).path());
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QByteArray TestFolder::Content(const QString& name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString TestFolder::MakeFolder(const QString& name) const {
    EXPECT_TRUE(QDir().mkpath(Path(name)));
    return Path(name);
}

QStringList TestFolder::Names(const QString& folder) const {
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return QDir(Path(folder)).entryList(all, QDir::Name);
}
