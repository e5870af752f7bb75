#pragma once

#include "reports/Picture.h"

/// Texts whose size is known on paper: each character is 10 twips wide and each line 25 twips high
/// per point of the font, 78 and 195 in the font of the graph.
class FixedMetrics final : public TextMetrics {
public:
    double Width(const QString& text, const SurfaceFont& font) const override {
        return static_cast<double>(text.size()) * font.size * 10.0;
    }
    double Height(const QString&, const SurfaceFont& font) const override {
        return font.size * 25.0;
    }
};
