#pragma once

#include "session/Globals.h"
#include "statustable/NameTables.h"

/// Name of a variable of the kind that column 0 shows; NicNames win if both are asked for, and
/// with neither it is empty.
inline QString ShownName(const NameTables& names, const QString& address) {
    if (!gViewNicNames && !gViewDescriptions)
        return QString();
    return NameOfVariable(names, address,
                          gViewNicNames ? NameKind::NicName : NameKind::Description);
}
