#pragma once

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "reports/FixedMetrics.h"
#include "reports/ReportPrinter.h"
#include <vector>

/// What came of the documents of a printer.
struct KeptPaper {
    PaperOrientation orientation = PaperOrientation::Landscape;
    std::vector<Drawing> pages;
    int ended = 0;
    bool fails = false; ///< EndDoc raises error 57
};

/// A document on letter paper that outlives its printing.
class KeptDocument final : public PagedSurface {
public:
    explicit KeptDocument(KeptPaper& paper) : paper_(paper) {}
    void EndDoc() override {
        if (paper_.fails)
            throw RunTimeError(ErrorNumber::DeviceIOError);
        ++paper_.ended;
    }

protected:
    void BeginNextPage() override { begun_ = false; }
    double WidthInTwips() const override { return 12240; }
    double HeightInTwips() const override { return 15840; }
    double TextWidthInTwips(const QString& text) const override {
        return metrics_.Width(text, Font());
    }
    double TextHeightInTwips(const QString& text) const override {
        return metrics_.Height(text, Font());
    }
    void ClearSheet(bool) override {}
    void DrawLine(double, double, double, double) override {}
    void DrawTextAt(double x, double y, const QString& text) override {
        if (!begun_)
            paper_.pages.emplace_back();
        begun_ = true;
        paper_.pages.back().texts.push_back({x, y, text, Font(), Pen().colour});
    }

private:
    KeptPaper& paper_;
    FixedMetrics metrics_;
    bool begun_ = false;
};

/// A printer that keeps what it prints.
class KeptPrinter final : public ReportPrinter {
public:
    QString DeviceName() const override { return choice.printerName; }
    void UsePrinter(const PrinterChoice& chosen) override { choice = chosen; }
    std::unique_ptr<PagedSurface> OpenDocument(PaperOrientation orientation) override {
        paper.orientation = orientation;
        return std::make_unique<KeptDocument>(paper);
    }

    PrinterChoice choice;
    KeptPaper paper;
};
