#pragma once

#include "controls/PaintedValue.h"
#include "programset/PLSRecord.h"
#include <optional>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

/// What the strip shows: one machine cycle of `scaleFactor` divisions, the setpoints of one
/// channel, and where the machine stands.
struct ShownCycle {
    int scaleFactor = 0; ///< 0 while nothing was read
    QString channelName; ///< "CH10"; empty while no channel is shown
    SetpointList setpoints;
    std::optional<int> position; ///< division; none while it is not known

    bool operator==(const ShownCycle&) const = default;
};

/// A strip that stands for one machine cycle, division 0 at the top: the ON spans of a channel as
/// bars and the live position as a mark across it, for people who would rather look than read.
/// However fast it is told of changes it paints at most 25 times a second.
class CycleStripView final : public QWidget, public PaintedValue {
    Q_OBJECT
public:
    /// Shortest time between two repaints, in milliseconds.
    static constexpr int repaintInterval = 40;

    explicit CycleStripView(QWidget* parent = nullptr);

    /// Shows another cycle, at the next repaint that is due.
    void Show(const ShownCycle& cycle);
    /// What was told last, painted or not yet.
    const ShownCycle& Shown() const { return cycle_; }

    QString InWords() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QRect Bar() const;
    int Y(double along) const;
    void Gather();
    void PaintNow();
    void PaintScale(QPainter& painter) const;
    void PaintSpans(QPainter& painter) const;
    void PaintMarker(QPainter& painter) const;

    ShownCycle cycle_;
    QElapsedTimer clock_;
    qint64 lastPaint_ = -repaintInterval;
    QTimer gatherTimer_;
};
