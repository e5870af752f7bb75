#include "FuzzFile.h"

#include <fcntl.h>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <unistd.h>

QString FuzzFolder() {
    static const QTemporaryDir folder((QFileInfo(QStringLiteral("/dev/shm")).isWritable()
                                           ? QStringLiteral("/dev/shm")
                                           : QDir::tempPath()) +
                                      QStringLiteral("/quentor-fuzz-XXXXXX"));
    Require(folder.isValid(), "the folder for the input can be made");
    return folder.path();
}

QString MakeFuzzFile(const QString& name, std::string_view content) {
    QFile file(FuzzFolder() + u'/' + name);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(content.data(), static_cast<qint64>(content.size())) ==
                             static_cast<qint64>(content.size());
    Require(written, "a file beside the input can be written");
    return file.fileName();
}

FuzzFile::FuzzFile(const QString& name)
    : path_(FuzzFolder() + u'/' + name),
      file_(open(QFile::encodeName(path_).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    Require(file_ >= 0, "the file for the input can be made");
}

FuzzFile::~FuzzFile() {
    close(file_);
}

void FuzzFile::Put(FuzzInput input) const {
    const auto size = static_cast<ssize_t>(input.size());
    const bool written = pwrite(file_, input.data(), input.size(), 0) == size;
    Require(written && ftruncate(file_, size) == 0, "the input can be written");
}

void FuzzFile::AlsoAs(const QString& name) const {
    const QString link = FuzzFolder() + u'/' + name;
    Require(::link(QFile::encodeName(path_).constData(), QFile::encodeName(link).constData()) == 0,
            "the file for the input takes a second name");
}
