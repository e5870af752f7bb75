#pragma once

#include "controls/PaintedValue.h"
#include "reports/views/SurfacePainting.h"
#include <optional>
#include <QWidget>
#include <vector>

class modGraph;
class QImage;

/// The drawing surface of the graph in a window: sharp at any scale factor, in the colours of the
/// scheme. Under the mouse it shows a crosshair with the value of the sample there. From the
/// keyboard Left and Right move the crosshair by a sample, the page keys by ten, Home and End to
/// the first and the last; Escape takes it away.
class GraphView final : public QWidget, public PaintedValue {
    Q_OBJECT
public:
    /// `graph` tells which sample stands where; it must outlive the view.
    explicit GraphView(const modGraph& graph, QWidget* parent = nullptr);

    /// What the graph is drawn on; Show shows what was drawn.
    Picture& Surface() { return picture_; }
    /// Shows the surface; `samples` are the values drawn on it, for the crosshair.
    void Show(const std::vector<qint32>& samples);
    /// The graph as a picture for other programs: dark on white, at twice the size of the view.
    QImage Image() const;
    /// What the crosshair says: "Sample 3: 120"; empty while there is none.
    QString CrosshairText() const;
    /// How many samples there are, their range, and what the crosshair says.
    QString InWords() const override;

    QSize minimumSizeHint() const override { return {320, 200}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Point(std::optional<int> sample);
    std::optional<int> PointedAfter(int key) const;
    void PaintCrosshair(QPainter& painter) const;
    void PaintPicture(QPainter& painter, const QPalette& colours) const;

    const modGraph& graph_;
    QtTextMetrics metrics_;
    Picture picture_;
    std::vector<qint32> samples_;
    std::optional<int> pointed_; // sample under the crosshair
};
