#pragma once

#include "reports/Picture.h"
#include <functional>

class QColor;
class QFont;
class QPainter;
class QPalette;

/// The font of a surface with its size in twips: in a painter scaled to twips, texts have the same
/// proportions on any screen and any paper.
QFont FontInTwips(const SurfaceFont& font);

/// Sizes of texts as the painting below makes them.
class QtTextMetrics final : public TextMetrics {
public:
    double Width(const QString& text, const SurfaceFont& font) const override;
    double Height(const QString& text, const SurfaceFont& font) const override;
};

/// The colour for a number of the palette of 16.
using ColourOf = std::function<QColor(int)>;

/// Black stays black and grey a grey that prints.
QColor PaperColour(int colour);
/// Colours that can be read on the ground of a window of this scheme, light or dark.
QColor ScreenColour(int colour, const QPalette& palette);

/// Each paints what was drawn, in twips (1440 an inch): the painter must be scaled accordingly.
/// `colourOf` gives the colour for a number of the palette.
void PaintLine(QPainter& painter, const DrawnLine& line, const ColourOf& colourOf);
void PaintText(QPainter& painter, const DrawnText& text, const ColourOf& colourOf);
void PaintDrawing(QPainter& painter, const Drawing& drawing, const ColourOf& colourOf);
