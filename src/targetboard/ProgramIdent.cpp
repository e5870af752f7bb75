#include "targetboard/ProgramIdent.h"

#include "base/CharacterSet.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/TextFile.h"
#include "link/MarkHex.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include <QFileInfo>
#include <QLocale>

namespace {
constexpr int trailerLength = 4; // characters: checksum and revision

int MarkHexValue(QString pair) {
    return static_cast<int>(HexNumberValue(MarkHex2HEX(pair)));
}

void ReadRevFile(DiskIdent& ident, const QString& path) {
    if (!FileSystem().FileExists(path))
        return;
    TextReader file(path);
    if (file.AtEnd())
        return;
    const QString item = file.InputItem();
    if (item.size() < trailerLength)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    ident.name = item.chopped(trailerLength);
    ident.checksum = MarkHexValue(item.right(trailerLength).left(2));
    ident.revision = MarkHexValue(item.right(2));
}

QString ModifiedDate(const QString& path) {
    if (!FileSystem().FileExists(path))
        return QStringLiteral("-");
    const QDateTime modified = QFileInfo(OnDisk(path)).lastModified();
    return QLocale().toString(modified, QLocale::ShortFormat);
}
} // namespace

QString BoardIdentAddress(int offset) {
    return u'B' + QString::number(BoardIdent::firstAddress + offset);
}

void TakeIdentByte(IdentInPLC& ident, int offset, const QString& value) {
    if (offset == BoardIdent::checksumOffset) {
        ident[IdentLabel::Checksum] = value;
        return;
    }
    if (offset == BoardIdent::revisionOffset) {
        ident[IdentLabel::Revision] = value;
        return;
    }
    if (offset == 0)
        ident[IdentLabel::Name].clear();
    const auto code = static_cast<std::uint8_t>(WholeNumberValue(value));
    ident[IdentLabel::Name] += CharacterOfCode(code);
}

std::array<QString, IdentLabel::OnDiskCount> DiskIdent::Texts() const {
    return {name, QString::number(revision), QString::number(checksum), TargetboardName(boardIndex),
            date};
}

DiskIdent ReadDiskIdent(const QString& HdnFile) {
    DiskIdent ident;
    ident.boardIndex = ProgramBoardIndex(HdnFile);
    if (!FileSystem().FileExists(HdnFile))
        return ident;
    ReadRevFile(ident, ChangeExtension(HdnFile, QStringLiteral("rev")));
    ident.date = ModifiedDate(ChangeExtension(HdnFile, QStringLiteral("hex")));
    return ident;
}
