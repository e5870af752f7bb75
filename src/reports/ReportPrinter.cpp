#include "reports/ReportPrinter.h"

#include "reports/DrawingSurface.h"
#include "reports/modReport.h"

ReportPrinter::~ReportPrinter() = default;

void PrintReport(ReportPrinter& printer, const ReportGrid& grid, const Clock& clock,
                 const QString& title, qint16 kind) {
    const auto document = printer.OpenDocument(PaperOrientation::Portrait);
    ReportStart(*document, grid, clock, title, kind);
    document->EndDoc();
}
