#include "results/ResultsPaper.h"

#include "reports/DrawingSurface.h"
#include "reports/ReportPrinter.h"
#include <QString>
#include <QStringList>

namespace {
constexpr double margin = 0.5; // inches
constexpr qsizetype tabWidth = 8;
constexpr qsizetype mostOnPaperLine = 1000; // characters, in the smallest font that can be read

QString WithoutTabs(const QString& line) {
    QString plain;
    for (const QChar character : line) {
        if (character == u'\t')
            plain += QString(tabWidth - plain.size() % tabWidth, u' ');
        else
            plain += character;
    }
    return plain;
}

// How many characters of a text, at least one, fit into a width.
qsizetype CharactersThatFit(const PagedSurface& paper, const QString& text, double width) {
    if (paper.TextWidth(text) <= width)
        return text.size();
    qsizetype fitting = 1;
    qsizetype tooMany = text.size();
    while (tooMany - fitting > 1) {
        const qsizetype tried = (fitting + tooMany) / 2;
        (paper.TextWidth(text.left(tried)) <= width ? fitting : tooMany) = tried;
    }
    return fitting;
}

void PrintPiece(PagedSurface& paper, const QString& piece) {
    if (paper.CurrentY() + paper.TextHeight(piece) > paper.ScaleHeight())
        paper.NewPage();
    if (paper.CurrentX() < margin)
        paper.SetCurrentX(margin);
    paper.Print(piece);
}

void PrintLine(PagedSurface& paper, const QString& line) {
    const double width = paper.ScaleWidth() - 2 * margin;
    qsizetype printed = 0;
    do {
        const QString rest = line.mid(printed, mostOnPaperLine);
        const qsizetype count = CharactersThatFit(paper, rest, width);
        PrintPiece(paper, rest.left(count));
        printed += count;
    } while (printed < line.size());
}
} // namespace

void PrintResultsText(ReportPrinter& printer, const SurfaceFont& font, const QString& text) {
    const auto paper = printer.OpenDocument(PaperOrientation::Portrait);
    paper->SetScaleMode(ScaleMode::Inches);
    paper->SetFont(font);
    QStringList lines = QString(text).remove(u'\r').split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (const QString& line : lines)
        PrintLine(*paper, WithoutTabs(line));
    paper->EndDoc();
}
