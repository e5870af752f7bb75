#pragma once

#include "base/Dialogs.h"
#include "reports/ReportPrinter.h"
#include "reports/views/SurfacePainting.h"
#include <QPainter>
#include <QPrinter>
#include <QTemporaryFile>

/// A document on a printer or in a PDF file, black on white. The sheet is the part of the paper
/// that can be printed on. A PDF file comes into being whole with EndDoc, or not at all. Drawing
/// raises 68 when there is no such printer, 57 when it fails and 61 when a PDF file does; after
/// that nothing more is printed and EndDoc raises the same, whoever swallowed it before.
class PrinterSurface final : public PagedSurface {
public:
    PrinterSurface(const PrinterChoice& choice, PaperOrientation orientation);
    ~PrinterSurface() override;

    void EndDoc() override;

protected:
    double WidthInTwips() const override;
    double HeightInTwips() const override;
    double TextWidthInTwips(const QString& text) const override;
    double TextHeightInTwips(const QString& text) const override;
    void ClearSheet(bool) override {} // what is on paper stays
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void DrawTextAt(double x, double y, const QString& text) override;
    void BeginNextPage() override { pageWanted_ = true; }

private:
    QPainter& Painter();
    int WriteError() const;
    [[noreturn]] void Fail(int error);
    void PutPdfInPlace();

    const QString pdf_; // path of the PDF file, empty for a printer
    QTemporaryFile pdfInWork_;
    QtTextMetrics metrics_;
    QPrinter printer_;
    QPainter painter_;
    bool pageWanted_ = false;
    int failure_ = 0; // number of the error that the document failed with, 0 while it is whole
};

/// The printers of the system: the default one until the user chose another. Of several documents
/// that go to one PDF file, the first gets its name and each further one a name of its own beside
/// it ("press-2.pdf"), so that none replaces another.
class SystemPrinter final : public ReportPrinter {
public:
    QString DeviceName() const override;
    void UsePrinter(const PrinterChoice& choice) override;
    std::unique_ptr<PagedSurface> OpenDocument(PaperOrientation orientation) override;

private:
    PrinterChoice choice_;
    bool pdfTaken_ = false; // a document went to the file that was chosen
};
