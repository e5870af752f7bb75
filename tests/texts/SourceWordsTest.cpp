#include "SourceTexts.h"
#include "TextList.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

// No text gets into the sources without getting into a list.

namespace {
const QChar border{0x2}; // between two listed texts

// All listed texts and titles in a row.
QString AllListed() {
    QString all;
    for (const QString& name : TextListNames())
        for (const ListedText& row : ReadTextList(name))
            all += row.title + border + row.text + border;
    return all;
}

// What the literals look like that are no texts.
QRegularExpression NoTexts() {
    QFile file(QStringLiteral(TEXT_LISTS "/no-texts.txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList patterns;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        if (!line.startsWith(u'#'))
            patterns.append(QStringLiteral("(%1)").arg(line.section(u'\t', 0, 0)));
    return QRegularExpression(
        QRegularExpression::anchoredPattern(patterns.join(QStringLiteral("|"))));
}

bool HasWords(const QString& literal) {
    static const QRegularExpression twoLetters(QStringLiteral("[A-Za-z].*[A-Za-z]"));
    return twoLetters.match(literal).hasMatch();
}

// Where a literal has a %1, a listed text may have anything.
bool IsPartOfListed(const QString& literal, const QString& listed) {
    static const QRegularExpression place(QStringLiteral("%\\d"));
    QStringList parts = literal.split(place);
    if (parts.size() == 1)
        return listed.contains(literal);
    for (QString& part : parts)
        part = QRegularExpression::escape(part);
    const QString anything = QStringLiteral("[^%1]+").arg(border);
    return QRegularExpression(parts.join(anything)).match(listed).hasMatch();
}

// Texts with words of a folder of the sources that stand in no list, a line each.
std::string UnlistedTexts(const QString& folder) {
    const QString listed = AllListed();
    const QRegularExpression noTexts = NoTexts();
    QSet<QString> known;
    std::string unlisted;
    for (const QString& path : SourceFiles(folder))
        for (const SourceText& expression : TextsOfSource(ReadSource(path)))
            for (const QString& literal : expression.text.split(variablePlace)) {
                if (known.contains(literal) || !HasWords(literal))
                    continue;
                known.insert(literal);
                if (!noTexts.match(literal).hasMatch() && !IsPartOfListed(literal, listed))
                    unlisted += path.toStdString() + ':' + std::to_string(expression.line) + '\t' +
                                Printed(literal) + '\n';
            }
    return unlisted;
}
} // namespace

TEST(SourceWords, EachTextOfTheProgramStandsInAList) {
    EXPECT_EQ(UnlistedTexts(QStringLiteral("src")), "");
}
