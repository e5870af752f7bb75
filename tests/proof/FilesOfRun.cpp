#include "FilesOfRun.h"

#include "base/RunTimeError.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <sys/wait.h>
#include <unistd.h>

namespace {
int ExitCodeOf(const std::function<void()>& work) {
    try {
        work();
        return 0;
    } catch (const RunTimeError&) {
        return 0;
    } catch (...) {
        return 1;
    }
}
} // namespace

Files FilesBelow(const QString& folder) {
    Files files;
    QDirIterator found(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        QFile file(found.next());
        if (file.open(QIODevice::ReadOnly))
            files[QDir(folder).relativeFilePath(file.fileName())] = file.readAll();
    }
    return files;
}

void MakeFiles(const QString& folder, const Files& files) {
    for (const auto& [name, bytes] : files) {
        QFile file(folder + u'/' + name);
        QDir().mkpath(QFileInfo(file.fileName()).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << "cannot write " << name.toStdString();
    }
}

QString FastFolder() {
    const QString memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/proof-XXXXXX");
}

bool RunsToItsEnd(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(ExitCodeOf(work)); // no end of a test: the folders belong to the parent
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGKILL : WEXITSTATUS(status) == 0);
    return WIFEXITED(status);
}
