#pragma once

#include <ostream>
#include <QString>

/// Lets a failed comparison show its texts readably.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
