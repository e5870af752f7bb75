#include "reports/views/PrinterSurface.h"

#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include <QColor>
#include <QFileInfo>
#include <QPageLayout>
#include <QPrinterInfo>

namespace {
constexpr double twipsPerInch = 1440.0;
constexpr double twipsPerPoint = 20.0;
constexpr double pdfMargin = 0.25; // inches; what office printers cannot reach

// "press-2.pdf" beside "press.pdf", or the first higher number that is free.
QString NameBeside(const QString& path) {
    const QFileInfo file(path);
    const QString stem = file.path() + u'/' + file.completeBaseName() + u'-';
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    int number = 2;
    while (QFileInfo::exists(stem + QString::number(number) + suffix))
        ++number;
    return stem + QString::number(number) + suffix;
}
} // namespace

PrinterSurface::PrinterSurface(const PrinterChoice& choice, PaperOrientation orientation)
    : pdf_(choice.outputFile), printer_(QPrinter::HighResolution) {
    if (!choice.printerName.isEmpty())
        printer_.setPrinterName(choice.printerName);
    printer_.setCopyCount(choice.copies);
    printer_.setPageOrientation(orientation == PaperOrientation::Landscape ? QPageLayout::Landscape
                                                                           : QPageLayout::Portrait);
    if (pdf_.isEmpty())
        return;
    if (!pdfInWork_.open())
        throw RunTimeError(ErrorNumber::PathFileAccess);
    printer_.setOutputFormat(QPrinter::PdfFormat);
    printer_.setOutputFileName(pdfInWork_.fileName());
    printer_.setPageMargins(QMarginsF(pdfMargin, pdfMargin, pdfMargin, pdfMargin),
                            QPageLayout::Inch);
}

PrinterSurface::~PrinterSurface() {
    if (painter_.isActive())
        printer_.abort();
}

double PrinterSurface::WidthInTwips() const {
    return printer_.pageLayout().paintRect(QPageLayout::Point).width() * twipsPerPoint;
}

double PrinterSurface::HeightInTwips() const {
    return printer_.pageLayout().paintRect(QPageLayout::Point).height() * twipsPerPoint;
}

double PrinterSurface::TextWidthInTwips(const QString& text) const {
    return metrics_.Width(text, Font());
}

double PrinterSurface::TextHeightInTwips(const QString& text) const {
    return metrics_.Height(text, Font());
}

// What a PDF file in work runs into is the end of the disk.
int PrinterSurface::WriteError() const {
    return pdf_.isEmpty() ? ErrorNumber::DeviceIOError : ErrorNumber::DiskFull;
}

void PrinterSurface::Fail(int error) {
    failure_ = error;
    throw RunTimeError(error);
}

QPainter& PrinterSurface::Painter() {
    if (failure_ != 0)
        Fail(failure_);
    if (!painter_.isActive()) {
        if (!printer_.isValid() || !painter_.begin(&printer_))
            Fail(ErrorNumber::DeviceUnavailable);
        const double scale = printer_.resolution() / twipsPerInch;
        painter_.scale(scale, scale);
    } else if (pageWanted_ && !printer_.newPage()) {
        Fail(WriteError());
    }
    pageWanted_ = false;
    return painter_;
}

void PrinterSurface::DrawLine(double x1, double y1, double x2, double y2) {
    PaintLine(Painter(), {x1, y1, x2, y2, Pen()}, PaperColour);
}

void PrinterSurface::DrawTextAt(double x, double y, const QString& text) {
    PaintText(Painter(), {x, y, text, Font(), Pen().colour}, PaperColour);
}

void PrinterSurface::EndDoc() {
    if (failure_ != 0)
        Fail(failure_);
    if (painter_.isActive() && (!painter_.end() || printer_.printerState() == QPrinter::Error))
        throw RunTimeError(WriteError());
    if (!pdf_.isEmpty())
        PutPdfInPlace();
}

// A full disk leaves the file in work without its end.
void PrinterSurface::PutPdfInPlace() {
    pdfInWork_.seek(0);
    const QByteArray content = pdfInWork_.readAll();
    if (!content.trimmed().endsWith("%%EOF"))
        throw RunTimeError(ErrorNumber::DiskFull);
    WriteWholeFile(pdf_, content);
}

void SystemPrinter::UsePrinter(const PrinterChoice& choice) {
    choice_ = choice;
    pdfTaken_ = false;
}

QString SystemPrinter::DeviceName() const {
    if (!choice_.outputFile.isEmpty())
        return choice_.outputFile;
    return choice_.printerName.isEmpty() ? QPrinterInfo::defaultPrinterName() : choice_.printerName;
}

std::unique_ptr<PagedSurface> SystemPrinter::OpenDocument(PaperOrientation orientation) {
    PrinterChoice choice = choice_;
    if (pdfTaken_)
        choice.outputFile = NameBeside(choice_.outputFile);
    auto document = std::make_unique<PrinterSurface>(choice, orientation);
    pdfTaken_ = !choice_.outputFile.isEmpty();
    return document;
}
