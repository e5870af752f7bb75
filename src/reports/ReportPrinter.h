#pragma once

#include <memory>
#include <QString>

class Clock;
class PagedSurface;
class ReportGrid;
struct PrinterChoice;

enum class PaperOrientation { Portrait, Landscape };

/// The seam for paper: the printer, or PDF file, that documents go to.
class ReportPrinter {
public:
    virtual ~ReportPrinter();
    /// Name of the printer, or path of the PDF file, for the user; empty when there is none.
    virtual QString DeviceName() const = 0;
    /// Where the documents opened from now on go.
    virtual void UsePrinter(const PrinterChoice& choice) = 0;
    /// A new document. It is put out by its EndDoc; one that dies before that prints nothing more.
    /// Raises PathFileAccess (75) where a PDF file cannot be begun; a printer that is not there is
    /// told by the first thing drawn.
    virtual std::unique_ptr<PagedSurface> OpenDocument(PaperOrientation orientation) = 0;
};

/// The work of the print jobs: prints the grid (see ReportStart) as a document of its own in
/// portrait format. Raises what the printer raises.
void PrintReport(ReportPrinter& printer, const ReportGrid& grid, const Clock& clock,
                 const QString& title, qint16 kind);
