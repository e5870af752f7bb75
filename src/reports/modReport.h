#pragma once

#include <QString>

class Clock;
class PagedSurface;

/// Name of the table or trend that is printed, for the header. Written by ReportStart.
extern QString gReportTitle;
/// Kind of the report that is printed (ReportKind). Written by ReportStart.
extern qint16 gReportKind;
/// Left margin, which is the right one too, in inches.
extern double gLeftMargin;
/// Where the report printed last, in inches from the left top corner of the page.
extern double gPrintX;
extern double gPrintY;

namespace ReportKind {
constexpr qint16 StatusTable = 0; ///< any number but 1
constexpr qint16 Trend = 1;
} // namespace ReportKind

/// The texts of a grid as reports see them.
class ReportGrid {
public:
    virtual ~ReportGrid();
    /// Number of rows, the head rows included: two of a status table, one of a trend.
    virtual int Rows() const = 0;
    virtual int Columns() const = 0;
    /// Text of a cell, both counted from 0; empty where there is none.
    virtual QString Text(int row, int column) const = 0;
};

/// Prints the grid as a report of as many pages as it takes: a header with the title and the column
/// heads, and a footer with date, time and page number, on each page. Column 1 of a status table
/// stands 2 inches from column 0 while gViewDescriptions is set. The document stays open: the
/// caller ends it with EndDoc. What the printer raises passes to the caller.
void ReportStart(PagedSurface& printer, const ReportGrid& grid, const Clock& clock,
                 const QString& title, qint16 kind);
