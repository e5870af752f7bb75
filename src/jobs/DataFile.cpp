#include "jobs/DataFile.h"

#include "base/FileSystem.h"
#include "base/TextFile.h"
#include "link/MarkHex.h"

QStringList ReadDataPairs(const FileSystem& files, const QString& path, qsizetype most) {
    QStringList pairs;
    if (!files.FileExists(path))
        return pairs;
    TextReader reader(path);
    if (reader.AtEnd())
        return pairs;
    QString image = reader.InputItem();
    MarkHex2HEX(image);
    for (qsizetype at = 0; at + 1 < image.size() && pairs.size() < most; at += 2)
        pairs.append(image.mid(at, 2));
    return pairs;
}

void WriteDataPairs(const QString& path, const QStringList& pairs) {
    QString image = pairs.join(QString());
    TextWriter writer(path);
    writer.PrintText(HEX2MarkHEX(image));
    writer.Close();
}
