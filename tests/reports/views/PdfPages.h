#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <vector>

/// A word on a page of a PDF file, in inches from the left top corner of the paper.
struct PdfWord {
    QString text;
    double x = 0.0;
    double y = 0.0;
};

using PdfPage = std::vector<PdfWord>;

/// The words of a PDF file page by page, as poppler finds them; empty if the file is none.
inline std::vector<PdfPage> ReadPdf(const QString& path) {
    QProcess process;
    process.start(QStringLiteral("pdftotext"),
                  {QStringLiteral("-bbox"), path, QStringLiteral("-")});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    static const QRegularExpression tag(
        QStringLiteral("<page |<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>([^<]*)</word>"));
    constexpr double pointsPerInch = 72.0;
    std::vector<PdfPage> pages;
    auto found = tag.globalMatch(QString::fromUtf8(process.readAllStandardOutput()));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(3).isEmpty())
            pages.emplace_back();
        else if (!pages.empty())
            pages.back().push_back({match.captured(3), match.captured(1).toDouble() / pointsPerInch,
                                    match.captured(2).toDouble() / pointsPerInch});
    }
    return pages;
}
