#include "help/GuideSearch.h"

#include <QRegularExpression>

namespace {
constexpr int excerptBefore = 24; // characters
constexpr int excerptAfter = 48;

QRegularExpression PatternOf(const QString& words) {
    QStringList escaped;
    for (const QString& word : words.simplified().split(u' ', Qt::SkipEmptyParts))
        escaped.append(QRegularExpression::escape(word));
    return QRegularExpression(escaped.join(QStringLiteral("\\s+")),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

// Whole words only at either end, unless the hit itself begins or ends inside one.
QString ExcerptOf(const QString& text, qsizetype position, qsizetype length) {
    qsizetype from = std::max<qsizetype>(0, position - excerptBefore);
    while (from > 0 && from < position && !text.at(from - 1).isSpace())
        ++from;
    qsizetype to = std::min(text.size(), position + length + excerptAfter);
    while (to < text.size() && to > position + length && !text.at(to).isSpace())
        --to;
    const QString middle = text.mid(from, to - from).remove(QChar::ObjectReplacementCharacter);
    return (from > 0 ? QStringLiteral("\u2026") : QString()) + middle.simplified() +
           (to < text.size() ? QStringLiteral("\u2026") : QString());
}
} // namespace

std::vector<GuideHit> FindInGuide(const QStringList& texts, const QString& words) {
    std::vector<GuideHit> hits;
    const QRegularExpression pattern = PatternOf(words);
    if (pattern.pattern().isEmpty())
        return hits;
    for (int page = 0; page < texts.size(); ++page) {
        QRegularExpressionMatchIterator found = pattern.globalMatch(texts.at(page));
        while (found.hasNext()) {
            const QRegularExpressionMatch match = found.next();
            hits.push_back(
                {page, static_cast<int>(match.capturedStart()),
                 static_cast<int>(match.capturedLength()),
                 ExcerptOf(texts.at(page), match.capturedStart(), match.capturedLength())});
        }
    }
    return hits;
}

int FirstHitFrom(const std::vector<GuideHit>& hits, int page) {
    for (std::size_t hit = 0; hit < hits.size(); ++hit)
        if (hits[hit].page >= page)
            return static_cast<int>(hit);
    return 0;
}
