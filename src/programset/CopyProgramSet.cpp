#include "programset/CopyProgramSet.h"

#include "base/Dialogs.h"
#include "base/Drives.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/Siblings.h"
#include "programset/FileOperations.h"
#include "programset/ProgramSet.h"
#include "programset/SetName.h"
#include "programset/ShortName.h"
#include <QFileInfo>

namespace {
// One tighter than eight letters and ".hdn" need: the tools' users know the box that way.
constexpr qsizetype longestName = 11;

bool IsSameFile(const QString& one, const QString& other) {
    return QFileInfo::exists(other) &&
           QFileInfo(one).canonicalFilePath() == QFileInfo(other).canonicalFilePath();
}

QString WithHdn(const QString& path) {
    return FileSystem().GetExtensionName(path).toLower() == QLatin1String("hdn")
               ? path
               : path + QStringLiteral(".hdn");
}
} // namespace

CopyProgramSet::CopyProgramSet(Dialogs& dialogs, FileOperations& files, const Drives& drives)
    : dialogs_(dialogs), files_(files), drives_(drives) {}

bool CopyProgramSet::Begin(const Request& request) {
    const FileSystem paths;
    const QString source = paths.BuildPath(request.sourceFolder, request.sourceName);
    if (!paths.FileExists(source)) {
        dialogs_.MsgBox(source + QStringLiteral(" does not exist.?"), MsgStyle::Information,
                        errorTitle);
        return false;
    }
    if (request.destinationName.isEmpty())
        return false;
    if (request.destinationName.size() > longestName)
        TellShortNames(dialogs_, errorTitle);

    const QString destination =
        WithHdn(paths.BuildPath(request.destinationFolder, request.destinationName));
    longBase_ = paths.GetBaseName(destination);
    CheckBaseName(longBase_);
    if (paths.FileExists(destination) && !UserReplaces(paths.GetFileName(destination)))
        return false;

    sourceFolder_ = OnDisk(paths.GetParentFolderName(paths.GetAbsolutePathName(source)));
    destinationFolder_ = OnDisk(paths.GetParentFolderName(paths.GetAbsolutePathName(destination)));
    writtenBase_ = ShortBaseName(destinationFolder_, longBase_);
    driveRoot_ = drives_.RootOf(destinationFolder_);
    members_ = SetMembers(sourceFolder_, paths.GetBaseName(source));
    written_.clear();
    next_ = 0;
    aborted_ = false;
    return true;
}

bool CopyProgramSet::UserReplaces(const QString& name) {
    const QString question =
        QStringLiteral("The Halden program ") + name +
        QStringLiteral(" already exists. Do you want to replace the existing program?");
    return dialogs_.MsgBox(question, MsgStyle::YesNoCancelQuestion, errorTitle) == MsgAnswer::Yes;
}

bool CopyProgramSet::MoreFiles() const {
    return next_ < members_.size();
}

QString CopyProgramSet::StatusText() const {
    return QStringLiteral("Copying:  ") + members_.at(next_);
}

void CopyProgramSet::CopyNextFile() {
    const QString member = members_.at(next_);
    ++next_;
    const qint64 size = QFileInfo(FileSystem().BuildPath(sourceFolder_, member)).size();
    Room room = AwaitRoom(size);
    while (room == Room::Enough) {
        try {
            CopyMember(member);
            return;
        } catch (const RunTimeError& error) {
            if (error.Number() != ErrorNumber::DiskFull)
                throw;
        }
        room = AnswerFullDisk(drives_.At(driveRoot_).type);
        if (room == Room::Enough)
            room = AwaitRoom(size);
    }
    End(room);
}

// Goes on asking until the drive is ready and has room for `size` bytes, or the user gives up.
CopyProgramSet::Room CopyProgramSet::AwaitRoom(qint64 size) {
    for (;;) {
        const Drive drive = drives_.At(driveRoot_);
        if (drive.isReady && drive.availableSpace - size >= 0)
            return Room::Enough;
        if (drive.isReady) {
            const Room answer = AnswerFullDisk(drive.type);
            if (answer != Room::Enough)
                return answer;
        } else if (!UserRetries(QStringLiteral("Please insert disk into drive ") + drive.letter +
                                    u'.',
                                QStringLiteral("Insert Disk"))) {
            return Room::Aborted;
        }
    }
}

// Enough means that the user may have put another disk in.
CopyProgramSet::Room CopyProgramSet::AnswerFullDisk(DriveType type) {
    const QString title = QStringLiteral("Copy");
    const QString text = QStringLiteral("The disk in the destination drive is full.");
    if (type != DriveType::Removable && type != DriveType::CDRom) {
        dialogs_.MsgBox(text, MsgStyle::Critical, title);
        return Room::DiskIsFull;
    }
    const QString wish = QStringLiteral("\r\n\r\nInsert a new disk to continue.");
    return UserRetries(text + wish, title) ? Room::Enough : Room::Aborted;
}

bool CopyProgramSet::UserRetries(const QString& text, const QString& title) {
    return dialogs_.MsgBox(text, MsgStyle::RetryCancelInformation, title) == MsgAnswer::Retry;
}

void CopyProgramSet::CopyMember(const QString& member) {
    const FileSystem paths;
    const QString suffix = PointAndExtension(member).toUpper();
    const QString source = paths.BuildPath(sourceFolder_, member);
    const QString name = writtenBase_ + suffix;
    if (written_.contains(name))
        throw FileError(ErrorNumber::FileAlreadyExists, source);
    if (IsSameFile(source, OnDisk(paths.BuildPath(destinationFolder_, longBase_ + suffix))))
        throw FileError(ErrorNumber::PermissionDenied, source);
    files_.Copy(source, OnDisk(paths.BuildPath(destinationFolder_, name)));
    written_.append(name);
    if (writtenBase_ != longBase_)
        DropLongNamed(suffix);
}

// The user agreed that a set of the long name is replaced; its successor bears the short one.
void CopyProgramSet::DropLongNamed(const QString& suffix) {
    const FileSystem paths;
    const QString longNamed = OnDisk(paths.BuildPath(destinationFolder_, longBase_ + suffix));
    if (paths.FileExists(longNamed))
        files_.Remove(longNamed);
}

void CopyProgramSet::End(Room room) {
    aborted_ = room == Room::Aborted;
    next_ = members_.size();
}

std::optional<QString> CopyProgramSet::Destination() const {
    if (aborted_ || written_.isEmpty())
        return std::nullopt;
    return ChangeExtension(FileSystem().BuildPath(destinationFolder_, written_.last()),
                           QStringLiteral("HDN"));
}
