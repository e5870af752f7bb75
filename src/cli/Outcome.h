#pragma once

#include "cli/ExitCode.h"
#include <QJsonObject>
#include <QStringList>

/// How a command ended and what it found.
struct Outcome {
    ExitCode code = ExitCode::Done;
    QString reason;     ///< one line; empty for Done
    QJsonObject result; ///< of --json
    QStringList lines;  ///< the same for people
};

/// An outcome without a result.
inline Outcome Ended(ExitCode code, const QString& reason) {
    return {.code = code, .reason = reason, .result = {}, .lines = {}};
}
