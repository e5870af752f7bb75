#include "base/modUtility.h"

#include "base/FileSystem.h"

namespace {
QString EightBits(qint32 part) {
    QString bits(8, u'0');
    if (part <= 0)
        return bits;
    for (int bit = 0; bit < 8; ++bit)
        if (part & (1 << bit))
            bits[7 - bit] = u'1';
    return bits;
}
} // namespace

QString ChangeExtension(const QString& path, const QString& extension) {
    const FileSystem files;
    const QString whole = files.GetAbsolutePathName(path);
    return files.BuildPath(files.GetParentFolderName(whole),
                           files.GetBaseName(whole) + u'.' + extension);
}

QString PadNumber(qint16 value, qint16 width) {
    return QString::number(value).rightJustified(width, u'0');
}

QString BinaryText(qint32 value, qint16 wide) {
    const QString low = EightBits(value % 256);
    return wide < 1 ? low : EightBits(value / 256) + low;
}
