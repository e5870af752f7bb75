#pragma once

#include <QString>
#include <QTemporaryDir>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

/// A real file system of a few pages for one test. Making one takes a right that not every
/// account has; Mounted tells.
class SmallDisk {
public:
    explicit SmallDisk(const char* size) {
#ifdef Q_OS_LINUX
        const std::string options = std::string("mode=777,size=") + size;
        mounted_ = ::mount("tmpfs", root_.path().toUtf8(), "tmpfs", 0, options.c_str()) == 0;
#endif
    }
    ~SmallDisk() {
#ifdef Q_OS_LINUX
        if (mounted_)
            ::umount2(root_.path().toUtf8(), MNT_DETACH);
#endif
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool Mounted() const {
        return mounted_;
    }
    /// From now on nothing can be changed, whoever tries.
    void MakeReadOnly() const {
#ifdef Q_OS_LINUX
        ::mount("tmpfs", root_.path().toUtf8(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr);
#endif
    }
    QString Path() const {
        return root_.path();
    }
    QString Path(const QString& name) const {
        return root_.filePath(name);
    }

private:
    QTemporaryDir root_;
    bool mounted_ = false;
};

#define SKIP_IF_NOT_MOUNTED(disk)                                                                  \
    if (!(disk).Mounted())                                                                         \
    GTEST_SKIP() << "this account may not mount a file system"
