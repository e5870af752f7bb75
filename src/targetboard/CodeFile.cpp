#include "targetboard/CodeFile.h"

#include "base/FileSystem.h"
#include "base/TextFile.h"

std::optional<QString> DescriptionInCodeFile(const QString& path, const QString& code) {
    std::optional<QString> result;
    if (!FileSystem().FileExists(path))
        return result;
    TextReader file(path);
    while (!file.AtEnd()) {
        const QString key = file.InputItem();
        if (key.isEmpty() && file.AtEnd())
            break; // an empty line at the end of the file is no pair cut short
        const QString description = file.InputItem();
        if (key.compare(code, Qt::CaseInsensitive) == 0)
            result = description;
    }
    return result;
}
