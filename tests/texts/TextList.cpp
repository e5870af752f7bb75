#include "TextList.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

namespace {
const QString listFolder = QStringLiteral(TEXT_LISTS);
const QString own = QStringLiteral(" own");
const QString messages = QStringLiteral("messages");

// What a backslash and this letter stand for; empty for a letter that stands for nothing.
QString Escaped(QChar letter) {
    switch (letter.unicode()) {
    case u'n':
        return QStringLiteral("\r\n");
    case u'r':
        return QStringLiteral("\r");
    case u'f':
        return QStringLiteral("\n");
    case u't':
        return QStringLiteral("\t");
    case u's':
        return QStringLiteral(" ");
    case u'\\':
    case u'{':
        return letter;
    default:
        return {};
    }
}

QString ScreenText(const QString& written) {
    QString text;
    for (int place = 0; place < written.size(); ++place) {
        const QChar character = written[place];
        if (character == u'\\' && ++place < written.size()) {
            const QString stands = Escaped(written[place]);
            EXPECT_FALSE(stands.isEmpty()) << written.toStdString();
            text += stands;
        } else if (character == u'{') {
            place = static_cast<int>(written.indexOf(u'}', place));
            EXPECT_GT(place, 0) << written.toStdString();
            text += variablePlace;
        } else {
            text += character;
        }
    }
    return text;
}

ListedText ReadRow(const QString& list, const QString& line) {
    QStringList columns = line.split(u'\t');
    const bool message = list == messages;
    EXPECT_GE(columns.size(), 3) << line.toStdString();
    EXPECT_LE(columns.size(), message ? 4 : 3) << line.toStdString();
    columns.resize(4);
    ListedText row;
    row.place = columns[0];
    if (message) {
        row.kind = QStringLiteral("message");
        row.title = ScreenText(columns[1]);
        row.note = columns[3];
    } else {
        row.kind = columns[1].chopped(columns[1].endsWith(own) ? own.size() : 0);
    }
    row.text = ScreenText(columns[2]);
    return row;
}
} // namespace

std::vector<ListedText> ReadTextList(const QString& name) {
    std::vector<ListedText> rows;
    QFile file(QDir(listFolder).filePath(name + QStringLiteral(".tsv")));
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "no list " << file.fileName().toStdString();
        return rows;
    }
    QTextStream lines(&file);
    while (!lines.atEnd()) {
        const QString line = lines.readLine();
        if (!line.isEmpty() && !line.startsWith(QStringLiteral("# ")))
            rows.push_back(ReadRow(name, line));
    }
    return rows;
}

QStringList TextListNames() {
    QStringList names;
    for (const QFileInfo& list :
         QDir(listFolder).entryInfoList({QStringLiteral("*.tsv")}, QDir::Files, QDir::Name))
        names.append(list.completeBaseName());
    return names;
}

bool IsListedText(const QString& text, const QString& listed) {
    if (!listed.contains(variablePlace))
        return text == listed;
    QStringList fixed = listed.split(variablePlace);
    for (QString& part : fixed)
        part = QRegularExpression::escape(part);
    const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(fixed.join(QStringLiteral(".+"))),
        QRegularExpression::DotMatchesEverythingOption);
    return pattern.match(text).hasMatch();
}

std::string Printed(const QString& text) {
    QString line = text;
    line.replace(u'\\', QStringLiteral("\\\\"))
        .replace(QStringLiteral("\r\n"), QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\n', QStringLiteral("\\f"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(variablePlace, QStringLiteral("{}"));
    for (qsizetype end = line.size(); end > 0 && line[end - 1] == u' '; --end)
        line.replace(end - 1, 1, QStringLiteral("\\s"));
    return line.toStdString();
}
