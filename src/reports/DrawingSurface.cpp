#include "reports/DrawingSurface.h"

namespace {
constexpr double twipsPerInch = 1440.0;
}

DrawingSurface::~DrawingSurface() = default;

void DrawingSurface::Cls() {
    ClearSheet(autoRedraw_);
    currentX_ = 0.0;
    currentY_ = 0.0;
}

void DrawingSurface::SetScaleMode(int mode) {
    const double wanted = mode == ScaleMode::Inches ? twipsPerInch : 1.0;
    currentX_ *= twipsPerUnit_ / wanted;
    currentY_ *= twipsPerUnit_ / wanted;
    twipsPerUnit_ = wanted;
}

double DrawingSurface::TextWidth(const QString& text) const {
    return TextWidthInTwips(text) / twipsPerUnit_;
}

double DrawingSurface::TextHeight(const QString& text) const {
    return TextHeightInTwips(text) / twipsPerUnit_;
}

void DrawingSurface::Line(double x1, double y1, double x2, double y2) {
    DrawLine(x1 * twipsPerUnit_, y1 * twipsPerUnit_, x2 * twipsPerUnit_, y2 * twipsPerUnit_);
    currentX_ = x2;
    currentY_ = y2;
}

void DrawingSurface::Print(const QString& text) {
    PrintWithoutLineEnd(text);
    currentX_ = 0.0;
    currentY_ += TextHeight(text);
}

void DrawingSurface::PrintWithoutLineEnd(const QString& text) {
    if (!text.isEmpty())
        DrawTextAt(currentX_ * twipsPerUnit_, currentY_ * twipsPerUnit_, text);
    currentX_ += TextWidth(text);
}

void PagedSurface::NewPage() {
    ++page_;
    SetCurrentX(0.0);
    SetCurrentY(0.0);
    BeginNextPage();
}
