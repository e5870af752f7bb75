#include "SourceTexts.h"
#include "TextList.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QRegularExpression>
#include <QSet>

// What a call of the program puts into a box is a title or a text of the list, whole.

namespace {
// A text without what the program puts in at its ends.
QString Core(QString text) {
    while (text.startsWith(variablePlace))
        text.remove(0, 1);
    while (text.endsWith(variablePlace))
        text.chop(1);
    return text;
}

QSet<QString> ListedBoxTexts() {
    QSet<QString> listed;
    for (const char* list : {"messages", "quentor-cli"})
        for (const ListedText& row : ReadTextList(QLatin1String(list)))
            listed << Core(row.title) << Core(row.text);
    return listed;
}

// Parts of texts that a call puts together with others; the tests that show their boxes hold the
// whole.
bool IsPart(const QString& text) {
    static const QSet<QString> parts{
        QStringLiteral(" File Does Not Exist."), QStringLiteral(" File is Not Valid"),
        QStringLiteral("\r\n\r\nProgram Downloaded Halted!"),
        QStringLiteral("Error Encountered while Programming Pulse Train."),
        QStringLiteral("Error:\r")};
    return parts.contains(text);
}

// The calls of a source that show a box, from their names to the end of the statement.
QStringList BoxCalls(const QString& source) {
    static const QRegularExpression call(
        QStringLiteral("\\b(MsgBox|InputBox|ShowErrorBox)\\([^;]*\"[^;]*;"));
    QStringList calls;
    for (auto found = call.globalMatch(source); found.hasNext();)
        calls.append(found.next().captured());
    return calls;
}

// "Unable to Open %1 File": the list has the names that come there.
bool IsListedWithNames(const QString& text, const QSet<QString>& listed) {
    return text.contains(variablePlace) &&
           std::any_of(listed.begin(), listed.end(),
                       [&text](const QString& row) { return IsListedText(row, text); });
}

struct Found {
    int texts = 0;
    std::string unlisted;
};

void Check(const QString& path, const QSet<QString>& listed, Found& found) {
    static const QRegularExpression place(QStringLiteral("%\\d"));
    for (const QString& call : BoxCalls(ReadSource(path)))
        for (SourceText& expression : TextsOfSource(call)) {
            ++found.texts;
            const QString text = Core(expression.text.replace(place, variablePlace));
            if (!listed.contains(text) && !IsPart(text) && !IsListedWithNames(text, listed))
                found.unlisted +=
                    path.section(u'/', -1).toStdString() + '\t' + Printed(text) + '\n';
        }
}
} // namespace

TEST(BoxCalls, PutOnlyListedTextsIntoBoxes) {
    const QSet<QString> listed = ListedBoxTexts();
    Found found;
    for (const QString& path : SourceFiles(QStringLiteral("src")))
        Check(path, listed, found);
    EXPECT_EQ(found.unlisted, "");
    EXPECT_GT(found.texts, 100) << "calls are found";
}
