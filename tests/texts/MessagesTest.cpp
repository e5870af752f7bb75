#include "SourceTexts.h"
#include "TextList.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

// Each box of the list is expected by a test, title and text letter for letter: that test drives
// the program into it, and fails unless exactly this box comes.

namespace {
// Where tests say something: in which sources, and in the tests of which subjects (folders below
// tests).
struct Said {
    QSet<QString> sources, subjects;
};

// What the tests of this house say, and where.
class TestTexts {
public:
    TestTexts() {
        for (const QString& path : SourceFiles(QStringLiteral("tests"))) {
            const QString subject = path.section(u'/', 1, 1);
            for (const SourceText& expression : TextsOfSource(ReadSource(path))) {
                Said& said = said_[WithoutEnd(expression.text)];
                said.subjects.insert(subject);
                said.sources.insert(path);
            }
        }
    }
    /// Where tests say a listed text, with anything at its variable places.
    Said Of(const QString& listed) const {
        if (!listed.contains(variablePlace))
            return said_.value(listed);
        Said all;
        const QRegularExpression pattern = PatternOf(listed);
        const QString fixed = LongestPart(listed);
        for (auto text = said_.begin(); text != said_.end(); ++text)
            if (text.key().contains(fixed) && pattern.match(text.key()).hasMatch()) {
                all.subjects.unite(text->subjects);
                all.sources.unite(text->sources);
            }
        return all;
    }

private:
    // Without the place of what is put in by a call behind the literal: "at %1".arg(place).
    static QString WithoutEnd(const QString& text) {
        return text.endsWith(variablePlace) ? text.chopped(1) : text;
    }
    // What a test puts in at the ends stands in no literal.
    static QRegularExpression PatternOf(const QString& listed) {
        QStringList parts = listed.split(variablePlace);
        for (QString& part : parts)
            part = QRegularExpression::escape(part);
        QString pattern = parts.join(QStringLiteral(".+"));
        if (parts.first().isEmpty())
            pattern.replace(0, 2, QStringLiteral(".*"));
        if (parts.last().isEmpty())
            pattern.replace(pattern.size() - 2, 2, QStringLiteral(".*"));
        return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                  QRegularExpression::DotMatchesEverythingOption);
    }
    static QString LongestPart(const QString& listed) {
        const QStringList parts = listed.split(variablePlace);
        return *std::max_element(
            parts.begin(), parts.end(),
            [](const QString& one, const QString& other) { return one.size() < other.size(); });
    }

    QHash<QString, Said> said_;
};

// Many boxes have the text of the common report: there, one source must say text and title. For any
// other text it is enough that both stand in the tests of one subject, whose helpers join them.
bool IsShownByATest(const TestTexts& tests, const ListedText& row) {
    const Said texts = tests.Of(row.text);
    if (row.title == variablePlace) // the name of a file
        return !texts.sources.isEmpty();
    const Said titles = tests.Of(row.title);
    const bool report = row.text.startsWith(QStringLiteral("Error Number = "));
    return report ? titles.sources.intersects(texts.sources)
                  : titles.subjects.intersects(texts.subjects);
}
} // namespace

TEST(Messages, EachIsShownByATest) {
    const TestTexts tests;
    std::string undriven;
    for (const ListedText& row : ReadTextList(QStringLiteral("messages")))
        if (row.note.isEmpty() && !IsShownByATest(tests, row))
            undriven += row.place.toStdString() + '\t' + Printed(row.title) + '\t' +
                        Printed(row.text) + '\n';
    EXPECT_EQ(undriven, "");
}
