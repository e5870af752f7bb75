#pragma once

#include <optional>
#include <QtGlobal>
#include <vector>

class DrawingSurface;

/// The trend graph on a surface: a frame, and upon it a data set with its labels. The frame's
/// geometry is kept between the two. All lengths are in twips; 32 bits wide, since a window on a
/// large screen is wider than 16 bits of twips.
///
/// Neither raises: what the surface cannot draw is left out, and the rest is drawn all the same. A
/// printer tells its failure when the document is ended.
class modGraph {
public:
    /// Draws the frame: title, axes and dotted grid. The surface is kept for the data and must
    /// live until the next frame is drawn or Forget is called.
    void DrawGraphFrame(DrawingSurface& surface);
    /// Draws values and labels into the frame that was drawn last; without one it does nothing.
    /// `samples` stand from left to right, `colour` is a palette number. Fewer than two samples
    /// give labels and no line. The lowest range shown is 10, so that a steady signal is not blown
    /// up.
    void DrawGraphData(const std::vector<qint32>& samples, int colour);
    /// The surface is gone.
    void Forget() { surface_ = nullptr; }

    /// The sample that is drawn nearest to `x` (twips), for a look at its value; none outside the
    /// plot and while no line is drawn.
    std::optional<int> SampleAt(double x) const;
    /// Where a sample of the data drawn last stands, in twips: 0 is the newest, at the left axis.
    int XOf(int sample) const;
    /// Height at which a value stands in the data drawn last, in twips.
    int YOf(qint32 value) const;

    /// What the frame left: the plot's left bottom corner and its size.
    int OriginX() const { return originX_; }
    int OriginY() const { return originY_; }
    int PlotWidth() const { return plotWidth_; }
    int PlotHeight() const { return plotHeight_; }

private:
    struct ValueRange {
        qint64 lowest = 0;
        qint64 highest = 0;
        qint64 Extent() const { return highest - lowest; }
    };
    static ValueRange RangeOf(const std::vector<qint32>& samples);
    void Print(const QString& text);
    void PrintCentred(const QString& text, double top);
    void Line(double x1, double y1, double x2, double y2);
    void DrawTitles();
    void DrawAxes();
    void DrawDottedGrid();
    void DrawYLabels(const ValueRange& range);
    void DrawXLabels(int steps);
    void DrawValues(const std::vector<qint32>& samples, const ValueRange& range);

    DrawingSurface* surface_ = nullptr;
    int steps_ = 0;     // samples drawn last, less one
    qint64 lowest_ = 0; // of the values drawn last
    int originX_ = 0;
    int originY_ = 0;
    int plotWidth_ = 0;
    int plotHeight_ = 0;
    float xScale_ = 0.0F; ///< twips per sample
    float yScale_ = 0.0F; ///< twips per unit of value
};
