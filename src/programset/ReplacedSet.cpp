#include "programset/ReplacedSet.h"

#include "programset/FileOperations.h"
#include "programset/ProgramSet.h"
#include <QDir>
#include <QTemporaryDir>
#include <utility>

ReplacedSet::ReplacedSet(QString folder, const QString& baseName, FileOperations& files)
    : folder_(std::move(folder)), baseName_(baseName), files_(files),
      members_(SetMembers(folder_, baseName)) {}

void ReplacedSet::StepAside() {
    RefuseReadOnly(folder_, members_);
    QTemporaryDir aside(QDir(folder_).filePath(QStringLiteral("replaced-XXXXXX")));
    if (!aside.isValid())
        throw FileError(ErrorNumber::PathFileAccess, folder_);
    aside.setAutoRemove(false);
    asideFolder_ = aside.path();
    try {
        for (const QString& member : std::as_const(members_)) {
            files_.Move(QDir(folder_).filePath(member), QDir(asideFolder_).filePath(member));
            aside_.append(member);
        }
    } catch (const RunTimeError&) {
        ComeBack();
        throw;
    }
}

void ReplacedSet::ComeBack() {
    try {
        while (!aside_.isEmpty()) {
            const QString& member = aside_.last();
            files_.Move(QDir(asideFolder_).filePath(member), QDir(folder_).filePath(member));
            aside_.removeLast();
        }
    } catch (const RunTimeError& error) {
        RaiseWithPlace(error);
    }
    QDir().rmdir(asideFolder_);
}

void ReplacedSet::Discard() {
    try {
        while (!aside_.isEmpty()) {
            files_.Remove(QDir(asideFolder_).filePath(aside_.last()));
            aside_.removeLast();
        }
    } catch (const RunTimeError& error) {
        RaiseWithPlace(error);
    }
    QDir().rmdir(asideFolder_);
}

void ReplacedSet::RaiseWithPlace(const RunTimeError& cause) const {
    throw RunTimeError(cause.Number(), cause.Description() +
                                           QStringLiteral("\r\n\r\nFiles of the old program '") +
                                           baseName_ + QStringLiteral("' are in ") + asideFolder_);
}
