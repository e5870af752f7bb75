#pragma once

#include "reports/DrawingSurface.h"
#include <functional>
#include <vector>

struct DrawnLine {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0; ///< twips
    SurfacePen pen;
};

struct DrawnText {
    double x = 0.0, y = 0.0; ///< left top corner, twips
    QString text;
    SurfaceFont font;
    int colour = PaletteColour::Black;
};

/// Lines and texts in the order in which they were drawn, kind by kind.
struct Drawing {
    std::vector<DrawnLine> lines;
    std::vector<DrawnText> texts;
};

/// Size of a text in a font.
class TextMetrics {
public:
    virtual ~TextMetrics();
    virtual double Width(const QString& text, const SurfaceFont& font) const = 0;  ///< twips
    virtual double Height(const QString& text, const SurfaceFont& font) const = 0; ///< twips
};

/// A surface that keeps what is drawn as lines and texts, so that a window can paint it at any
/// scale factor and in the colours of its scheme as often as it likes.
class Picture final : public DrawingSurface {
public:
    /// `metrics` must outlive the picture. The size is in twips.
    Picture(const TextMetrics& metrics, double width, double height);

    /// Another size for what is drawn from now on.
    void Resize(double width, double height);
    /// What stays at a Cls.
    const Drawing& Ground() const { return ground_; }
    /// What was drawn upon it.
    const Drawing& Top() const { return top_; }

protected:
    double WidthInTwips() const override { return width_; }
    double HeightInTwips() const override { return height_; }
    double TextWidthInTwips(const QString& text) const override;
    double TextHeightInTwips(const QString& text) const override;
    void ClearSheet(bool groundToo) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawTextAt(double x, double y, const QString& text) override;

private:
    Drawing& Target() { return AutoRedraw() ? ground_ : top_; }

    const TextMetrics& metrics_;
    double width_;
    double height_;
    Drawing ground_;
    Drawing top_;
};
