#pragma once

#include "jobs/JobProgress.h"
#include <functional>
#include <QStringList>
#include <vector>

/// A job's view of the busy view that writes down what it is told.
class RecordingProgress final : public JobProgress {
public:
    void ShowMessage(const QString& text) override { messages.append(text); }
    void ShowSecondLine(const QString& text) override { secondLines.append(text); }
    void SetRange(qint32 low, qint32 high) override {
        min = low;
        max = high;
    }
    void SetValue(qint32 now) override { values.push_back(now); }
    bool Cancelled() const override { return cancelled; }
    void ClearCancel() override { cancelled = false; }
    void Yield() override {
        ++yields;
        if (onYield)
            onYield(yields);
    }

    QStringList messages;
    QStringList secondLines;
    std::vector<qint32> values;
    qint32 min = -1;
    qint32 max = -1;
    bool cancelled = false;
    int yields = 0;
    std::function<void(int)> onYield; ///< told how many yields there were so far
};
