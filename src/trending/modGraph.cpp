#include "trending/modGraph.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "reports/DrawingSurface.h"
#include <algorithm>
#include <cmath>

namespace {
// All lengths are in twips.
constexpr int leftEdge = 900;
constexpr int topEdge = 600;
constexpr int rightRoom = 300;
constexpr int titleTop = 100;
constexpr int xTitleRoom = 300; // from the foot of the surface to the top of "Samples"
constexpr int belowPlot = 600;  // from the axis to the foot of "Samples"
constexpr int yLabelDistance = 100;
constexpr int xParts = 10;
constexpr int yParts = 5;
constexpr qint64 leastRange = 10;
constexpr double fontSize = 7.8;
const QString fontName = QStringLiteral("MS Sans Serif");

// Half to even, like every rounding here, but over the 64 bits that a range of values can take.
QString RoundedText(double value) {
    return QString::number(static_cast<qint64>(std::nearbyint(value)));
}

template <class Statement>
void Attempt(const Statement& statement) {
    try {
        statement();
    } catch (const RunTimeError&) {
        return; // the next statement may succeed
    }
}
} // namespace

void modGraph::Print(const QString& text) {
    Attempt([&] { surface_->Print(text); });
}

void modGraph::PrintCentred(const QString& text, double top) {
    surface_->SetCurrentX(surface_->ScaleWidth() / 2 - surface_->TextWidth(text) / 2);
    surface_->SetCurrentY(top);
    Print(text);
}

void modGraph::Line(double x1, double y1, double x2, double y2) {
    Attempt([&] { surface_->Line(x1, y1, x2, y2); });
}

void modGraph::DrawGraphFrame(DrawingSurface& surface) {
    surface_ = &surface;
    surface.SetAutoRedraw(true);
    surface.Cls();
    surface.SetScaleMode(ScaleMode::Twips);
    surface.SetFontSize(fontSize);
    surface.SetFontName(fontName);
    surface.SetForeColor(PaletteColour::Black);
    DrawTitles();
    DrawAxes();
    DrawDottedGrid();
    surface.SetAutoRedraw(false);
}

void modGraph::DrawTitles() {
    surface_->SetFontBold(true);
    surface_->SetFontUnderline(true);
    PrintCentred(QStringLiteral("Trending Data"), titleTop);
    surface_->SetFontUnderline(false);
    PrintCentred(QStringLiteral("Samples"), surface_->ScaleHeight() - xTitleRoom);
}

// Stands on the position that the titles left: one line below "Samples".
void modGraph::DrawAxes() {
    surface_->SetDrawWidth(1);
    surface_->SetDrawStyle(DrawStyle::Solid);
    originX_ = leftEdge;
    originY_ = RoundToWhole(surface_->CurrentY() - belowPlot);
    const int rightEdge = RoundToWhole(surface_->ScaleWidth() - rightRoom);
    plotWidth_ = rightEdge - leftEdge;
    plotHeight_ = originY_ - topEdge;
    Line(leftEdge, originY_, rightEdge, originY_);
    Line(leftEdge, topEdge, leftEdge, originY_);
    Line(rightEdge, topEdge, rightEdge, originY_);
}

void modGraph::DrawDottedGrid() {
    surface_->SetDrawWidth(1);
    surface_->SetDrawStyle(DrawStyle::Dotted);
    surface_->SetForeColor(PaletteColour::Grey);
    const double xStep = static_cast<double>(plotWidth_) / xParts;
    for (int i = 1; i < xParts; ++i) {
        const int x = RoundToWhole(originX_ + xStep * i);
        Line(x, originY_, x, originY_ - plotHeight_);
    }
    const double yStep = static_cast<double>(plotHeight_) / yParts;
    for (int i = 1; i <= yParts; ++i) {
        const int y = RoundToWhole(originY_ - yStep * i);
        Line(originX_, y, originX_ + plotWidth_, y);
    }
}

modGraph::ValueRange modGraph::RangeOf(const std::vector<qint32>& samples) {
    ValueRange range;
    if (!samples.empty()) {
        const auto [lowest, highest] = std::minmax_element(samples.begin(), samples.end());
        range = {*lowest, *highest};
    }
    if (range.Extent() < leastRange)
        range.highest = range.lowest + leastRange;
    return range;
}

void modGraph::DrawGraphData(const std::vector<qint32>& samples, int colour) {
    if (!surface_)
        return;
    const ValueRange range = RangeOf(samples);
    surface_->Cls();
    surface_->SetFontSize(fontSize);
    surface_->SetFontName(fontName);
    surface_->SetForeColor(PaletteColour::Black);
    surface_->SetFontBold(false);
    surface_->SetFontUnderline(false);
    DrawYLabels(range);
    steps_ = std::max(static_cast<int>(samples.size()) - 1, 0);
    DrawXLabels(steps_);
    surface_->SetDrawWidth(1);
    surface_->SetDrawStyle(DrawStyle::Solid);
    surface_->SetForeColor(colour);
    surface_->SetCurrentX(originX_);
    surface_->SetCurrentY(originY_);
    DrawValues(samples, range);
}

void modGraph::DrawYLabels(const ValueRange& range) {
    const double step = static_cast<double>(plotHeight_) / yParts;
    for (int i = 0; i <= yParts; ++i) {
        const double value = static_cast<double>(range.Extent()) / yParts * i;
        const QString text = RoundedText(static_cast<double>(range.lowest) + value);
        surface_->SetCurrentX(originX_ - yLabelDistance - surface_->TextWidth(text));
        surface_->SetCurrentY(originY_ - step * i - surface_->TextHeight(text) / 2);
        Print(text);
    }
}

void modGraph::DrawXLabels(int steps) {
    const double step = static_cast<double>(plotWidth_) / xParts;
    for (int i = 0; i <= xParts; ++i) {
        const QString text = RoundedText(static_cast<double>(steps) / xParts * i);
        surface_->SetCurrentY(originY_ + surface_->TextHeight(QStringLiteral("8")) / 2);
        surface_->SetCurrentX(originX_ + step * i - surface_->TextWidth(text) / 2);
        Print(text);
    }
}

void modGraph::DrawValues(const std::vector<qint32>& samples, const ValueRange& range) {
    if (samples.size() < 2)
        return;
    xScale_ = static_cast<float>(plotWidth_) / static_cast<float>(steps_);
    lowest_ = range.lowest;
    yScale_ =
        static_cast<float>(static_cast<double>(plotHeight_) / static_cast<double>(range.Extent()));
    for (int i = 0; i < steps_; ++i)
        Line(XOf(i), YOf(samples[i]), XOf(i + 1), YOf(samples[i + 1]));
}

int modGraph::YOf(qint32 value) const {
    return RoundToWhole(originY_ - double(value - lowest_) * double(yScale_));
}

int modGraph::XOf(int sample) const {
    return RoundToWhole(originX_ + sample * double(xScale_));
}

std::optional<int> modGraph::SampleAt(double x) const {
    if (steps_ == 0 || plotWidth_ <= 0 || x < originX_ || x > originX_ + plotWidth_)
        return std::nullopt;
    return std::clamp(RoundToWhole((x - originX_) / plotWidth_ * steps_), 0, steps_);
}
