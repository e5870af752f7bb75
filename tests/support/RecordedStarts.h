#pragma once

#include "base/ProcessStart.h"
#include "base/RunTimeError.h"
#include <QList>
#include <QStringList>

/// Starts of other programs, kept instead of done.
class RecordedStarts final : public ProcessStart {
public:
    void Shell(const QString& command, int windowStyle) override {
        commands.append(command);
        styles.append(windowStyle);
        if (fails)
            throw RunTimeError(ErrorNumber::FileNotFound);
    }

    QStringList commands;
    QList<int> styles;
    bool fails = false;
};
