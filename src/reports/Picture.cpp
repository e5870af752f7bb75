#include "reports/Picture.h"

TextMetrics::~TextMetrics() = default;

Picture::Picture(const TextMetrics& metrics, double width, double height)
    : metrics_(metrics), width_(width), height_(height) {}

void Picture::Resize(double width, double height) {
    width_ = width;
    height_ = height;
}

double Picture::TextWidthInTwips(const QString& text) const {
    return metrics_.Width(text, Font());
}

double Picture::TextHeightInTwips(const QString& text) const {
    return metrics_.Height(text, Font());
}

void Picture::ClearSheet(bool groundToo) {
    top_ = Drawing();
    if (groundToo)
        ground_ = Drawing();
}

void Picture::DrawLine(double x1, double y1, double x2, double y2) {
    Target().lines.push_back({x1, y1, x2, y2, Pen()});
}

void Picture::DrawTextAt(double x, double y, const QString& text) {
    Target().texts.push_back({x, y, text, Font(), Pen().colour});
}
