#include "targetboard/SetupEntries.h"

QString LastTwoCharacters(const QString& value) {
    return (QStringLiteral("00") + value).right(2);
}

QString SetupRefusalTitle(int index) {
    return QStringLiteral("Set-up") +
           QString::fromUtf16(setupEntries[static_cast<std::size_t>(index)].label);
}
