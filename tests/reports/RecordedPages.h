#pragma once

#include "reports/FixedMetrics.h"
#include <memory>
#include <vector>

/// What was printed: the pages on which something was drawn, and how often the document was ended.
struct RecordedDocument {
    std::vector<Drawing> pages;
    int ended = 0;
};

/// A printer that keeps what each of its pages shows. Letter paper by default.
class RecordedPages final : public PagedSurface {
public:
    explicit RecordedPages(double widthInches = 8.5, double heightInches = 11.0)
        : width_(widthInches * 1440.0), height_(heightInches * 1440.0) {}

    const std::vector<Drawing>& Pages() const { return document_->pages; }
    /// The document, for those who look at it when the printer is gone.
    std::shared_ptr<const RecordedDocument> Document() const { return document_; }
    void EndDoc() override { ++document_->ended; }

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
            document_->pages.emplace_back();
        pageBegun_ = true;
        return document_->pages.back();
    }

    FixedMetrics metrics_;
    double width_;
    double height_;
    std::shared_ptr<RecordedDocument> document_ = std::make_shared<RecordedDocument>();
    bool pageBegun_ = false;
};
