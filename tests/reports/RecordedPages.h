#pragma once

#include "reports/FixedMetrics.h"
#include <vector>

/// A printer that keeps what each of its pages shows. Letter paper by default.
class RecordedPages final : public PagedSurface {
public:
    explicit RecordedPages(double widthInches = 8.5, double heightInches = 11.0)
        : width_(widthInches * 1440.0), height_(heightInches * 1440.0) {}

    /// The pages on which something was drawn.
    const std::vector<Drawing>& Pages() const { return pages_; }
    bool Ended() const { return ended_; }
    void EndDoc() override { ended_ = true; }

protected:
    void BeginNextPage() override { pageBegun_ = false; }
    double WidthInTwips() const override { return width_; }
    double HeightInTwips() const override { return height_; }
    double TextWidthInTwips(const QString& text) const override {
        return metrics_.Width(text, Font());
    }
    double TextHeightInTwips(const QString& text) const override {
        return metrics_.Height(text, Font());
    }
    void ClearSheet(bool) override {}
    void DrawLine(double x1, double y1, double x2, double y2) override {
        Sheet().lines.push_back({x1, y1, x2, y2, Pen()});
    }
    void DrawTextAt(double x, double y, const QString& text) override {
        Sheet().texts.push_back({x, y, text, Font(), Pen().colour});
    }

private:
    Drawing& Sheet() {
        if (!pageBegun_)
            pages_.emplace_back();
        pageBegun_ = true;
        return pages_.back();
    }

    FixedMetrics metrics_;
    double width_;
    double height_;
    std::vector<Drawing> pages_;
    bool pageBegun_ = false;
    bool ended_ = false;
};
