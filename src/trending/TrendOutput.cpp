#include "trending/TrendOutput.h"

#include "base/TextFile.h"
#include "reports/DrawingSurface.h"
#include "reports/ReportPrinter.h"
#include "trending/modGraph.h"
#include "trending/TrendSamples.h"

int TrendReportGrid::Rows() const {
    return samples_.Rows();
}

int TrendReportGrid::Columns() const {
    return TrendSamples::columns;
}

QString TrendReportGrid::Text(int row, int column) const {
    return samples_.Text(row, column);
}

void PrintGraph(ReportPrinter& printer, const TrendSamples& samples, int samplesToGraph) {
    const auto document = printer.OpenDocument(PaperOrientation::Landscape);
    modGraph graph;
    graph.DrawGraphFrame(*document);
    graph.DrawGraphData(ValuesToGraph(samples, samplesToGraph), PaletteColour::Black);
    document->EndDoc();
}

void ExportTrendCsv(const QString& path, const TrendSamples& samples) {
    TextWriter writer(path);
    writer.PrintText(QStringLiteral("Time (sec),Value"));
    for (const TrendRow& row : samples.DataRows())
        if (row != TrendRow())
            writer.PrintText(row.elapsed + u',' + row.data);
    writer.Close();
}
