#include "reports/modReport.h"

#include "base/Clock.h"
#include "programset/SiblingBoxes.h"
#include "reports/DrawingSurface.h"
#include "session/Globals.h"
#include <array>

QString gReportTitle;
qint16 gReportKind = ReportKind::StatusTable;
double gLeftMargin = 0.5;
double gPrintX = 0.0;
double gPrintY = 0.0;

ReportGrid::~ReportGrid() = default;

namespace {
// All lengths are in inches.
constexpr double topMargin = 0.1;
constexpr double belowHeaderLine = 0.25;
constexpr double columnStep = 1.0;
constexpr double descriptionStep = 2.0; // leaves room for long text
constexpr double footerRoom = 0.9;
constexpr double footerMargin = 0.1;
constexpr double footerFontSize = 10.0;
constexpr double betweenColumns = 0.05;
const QString ellipsis(u'\u2026');
const QString heightSample = QStringLiteral("I");

enum ReportFontNumber { Body = 1, HeadRow = 2, LastHeadRow = 3 };

SurfaceFont Times(double size, bool bold, bool underline) {
    return {QStringLiteral("Times"), size, bold, false, underline};
}

class Report {
public:
    Report(PagedSurface& printer, const ReportGrid& grid, const Clock& clock)
        : printer_(printer), grid_(grid), clock_(clock) {}

    void ReportStatusBody();
    void ReportTrendBody();

private:
    void ReportFont(int number);
    void ReportHeader();
    void ReportStatusColumns();
    void ReportTrendColumns();
    void PrintBody(int firstRow);
    void ReportPageCheck(bool force, int lines);
    void ReportFooter();
    void PrintRow(int row);
    QString CellText(int row, int column) const;
    QString FittedIn(const QString& text, double width) const;
    void PrintCell(int column, const QString& text);
    double PositionOf(int column) const;

    PagedSurface& printer_;
    const ReportGrid& grid_;
    const Clock& clock_;
};

bool IsTrend() {
    return gReportKind == ReportKind::Trend;
}

void Report::ReportFont(int number) {
    static const std::array<SurfaceFont, 5> fonts{Times(12, false, false), Times(12, true, false),
                                                  Times(12, true, true), Times(14, false, false),
                                                  Times(14, true, false)};
    printer_.SetFont(fonts.at(number - 1));
}

void Report::ReportHeader() {
    printer_.SetFont(Times(12, true, false));
    const QString text =
        (IsTrend() ? QStringLiteral("Trend Data: ") : QStringLiteral("Status Table: ")) +
        gReportTitle;
    gPrintX = (printer_.ScaleWidth() - printer_.TextWidth(text) - gLeftMargin) / 2;
    gPrintY = topMargin;
    printer_.SetCurrentX(gPrintX);
    printer_.SetCurrentY(gPrintY);
    printer_.Print(text);
    gPrintX = printer_.ScaleWidth() - gLeftMargin;
    gPrintY = topMargin + printer_.TextHeight(text);
    printer_.Line(gLeftMargin, gPrintY, gPrintX, gPrintY);
    printer_.SetCurrentX(gLeftMargin);
    printer_.SetCurrentY(gPrintY + belowHeaderLine);
    if (IsTrend())
        ReportTrendColumns();
    else
        ReportStatusColumns();
}

double Report::PositionOf(int column) const {
    if (column == 0)
        return gLeftMargin;
    const double first = !IsTrend() && gViewDescriptions ? descriptionStep : columnStep;
    return gLeftMargin + first + (column - 1) * columnStep;
}

void Report::PrintCell(int column, const QString& text) {
    printer_.SetCurrentX(PositionOf(column));
    if (column == grid_.Columns() - 1)
        printer_.Print(text);
    else
        printer_.PrintWithoutLineEnd(
            FittedIn(text, PositionOf(column + 1) - PositionOf(column) - betweenColumns));
}

// Two texts on top of each other could be misread: one that is too long for its column ends with
// an ellipsis.
QString Report::FittedIn(const QString& text, double width) const {
    if (printer_.TextWidth(text) <= width)
        return text;
    QString cut = text;
    while (!cut.isEmpty() && printer_.TextWidth(cut + ellipsis) > width)
        cut.chop(1);
    return cut + ellipsis;
}

QString Report::CellText(int row, int column) const {
    // The grid of a trend numbers only the rows that can be seen.
    if (IsTrend() && row > 0 && column == 0)
        return QString::number(row);
    return grid_.Text(row, column);
}

void Report::PrintRow(int row) {
    for (int column = 0; column < grid_.Columns(); ++column)
        PrintCell(column, CellText(row, column));
}

void Report::ReportStatusColumns() {
    ReportFont(HeadRow);
    PrintRow(0);
    ReportFont(LastHeadRow);
    PrintRow(1);
}

void Report::ReportTrendColumns() {
    ReportFont(LastHeadRow);
    PrintRow(0);
}

void Report::ReportStatusBody() {
    PrintBody(2);
}

void Report::ReportTrendBody() {
    PrintBody(1);
}

void Report::PrintBody(int firstRow) {
    ReportHeader();
    for (int row = firstRow; row < grid_.Rows(); ++row) {
        ReportFont(Body);
        PrintRow(row);
        ReportPageCheck(false, 1);
    }
    printer_.Print(QString());
    ReportFooter();
}

void Report::ReportPageCheck(bool force, int lines) {
    if (force)
        ReportFooter();
    const double freeLimit = printer_.ScaleHeight() - printer_.TextHeight(heightSample) * lines;
    if (freeLimit < printer_.CurrentY() + footerRoom)
        ReportFooter();
    if (printer_.CurrentY() == 0.0)
        ReportHeader();
}

void Report::ReportFooter() {
    const QString page = QStringLiteral("Page ") + QString::number(printer_.Page());
    printer_.SetFont(Times(footerFontSize, false, false));
    gPrintY = printer_.ScaleHeight() - printer_.TextHeight(heightSample) - footerMargin;
    printer_.SetCurrentX(gLeftMargin);
    printer_.SetCurrentY(gPrintY);
    printer_.PrintWithoutLineEnd(GeneralDate(clock_.WallClock()));
    printer_.SetCurrentX(printer_.ScaleWidth() - printer_.TextWidth(page) - gLeftMargin);
    printer_.Print(page);
    const double lineY = gPrintY - footerMargin;
    printer_.Line(gLeftMargin, lineY, printer_.ScaleWidth() - gLeftMargin, lineY);
    printer_.NewPage();
}
} // namespace

void ReportStart(PagedSurface& printer, const ReportGrid& grid, const Clock& clock,
                 const QString& title, qint16 kind) {
    gReportTitle = title;
    gReportKind = kind;
    gLeftMargin = 0.5;
    printer.SetScaleMode(ScaleMode::Inches);
    Report report(printer, grid, clock);
    if (IsTrend())
        report.ReportTrendBody();
    else
        report.ReportStatusBody();
}
