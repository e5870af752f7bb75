#pragma once

#include "jobs/JobProgress.h"

/// A busy view that nobody looks at and nobody cancels; a test overrides what it wants to see.
class NoProgress : public JobProgress {
public:
    void ShowMessage(const QString&) override {}
    void ShowSecondLine(const QString&) override {}
    void SetRange(qint32, qint32) override {}
    void SetValue(qint32) override {}
    bool Cancelled() const override { return false; }
    void ClearCancel() override {}
    void Yield() override {}
};
