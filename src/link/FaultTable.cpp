#include "link/FaultTable.h"

#include "base/FileSystem.h"
#include "base/TextFile.h"

QString FaultTableKey(qint16 code) {
    const auto bits = static_cast<quint16>(code);
    return QString::number(bits, 16).toUpper().rightJustified(2, u'0');
}

void AppendFaultText(QString& text, const QString& key, const QString& path) {
    if (!FileSystem().FileExists(path)) {
        text += QStringLiteral("--- Fault File Not Found ---");
        return;
    }
    TextReader file(path);
    while (!file.AtEnd()) {
        const QString code = file.InputItem();
        if (code.isEmpty() && file.AtEnd())
            return; // an empty line at the end of the file is no pair cut short
        const QString description = file.InputItem();
        if (code.compare(key, Qt::CaseInsensitive) == 0) {
            text += description;
            return;
        }
    }
}
