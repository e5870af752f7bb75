#pragma once

#include "reports/modReport.h"
#include <QString>

class ReportPrinter;
class TrendSamples;

/// The sample grid as reports see it.
class TrendReportGrid final : public ReportGrid {
public:
    /// `samples` must outlive the grid.
    explicit TrendReportGrid(const TrendSamples& samples) : samples_(samples) {}
    int Rows() const override;
    int Columns() const override;
    QString Text(int row, int column) const override;

private:
    const TrendSamples& samples_;
};

/// Prints the graph of the samples (see ValuesToGraph), black, as a landscape page of its own.
/// Raises what the printer raises.
void PrintGraph(ReportPrinter& printer, const TrendSamples& samples, int samplesToGraph);

/// Writes the samples as comma separated values for other programs: a line of heads, then one
/// sample a line in the order of the grid; empty rows are left out. Raises as WriteWholeFile.
void ExportTrendCsv(const QString& path, const TrendSamples& samples);
