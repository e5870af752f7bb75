#include "SourceTexts.h"
#include "TextList.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

// No text stays in a list that the program has no longer.

namespace {
using Pieces = QSet<QString>;

// What the literals of a source are made of: their parts between the places where something is put
// in. Blanks alone are none: they would fill up what is missing.
void AddPieces(const QString& path, Pieces& pieces) {
    static const QRegularExpression place(QStringLiteral("%\\d|\\x{1}"));
    for (const SourceText& expression : TextsOfSource(ReadSource(path)))
        for (const QString& piece : expression.text.split(place, Qt::SkipEmptyParts))
            if (piece.contains(QRegularExpression(QStringLiteral("[^ ]"))))
                pieces.insert(piece);
}

// What texts of every folder are made of: the common report and the names of boards.
Pieces CommonPieces() {
    Pieces pieces;
    AddPieces(QStringLiteral("src/base/RunTimeError.cpp"), pieces);
    AddPieces(QStringLiteral("src/link/TargetBoards.cpp"), pieces);
    pieces.removeIf([](const QString& piece) { return piece.size() < 3; }); // codes of boards
    return pieces;
}

// The pieces of each folder below src.
QMap<QString, Pieces> PiecesByFolder() {
    const Pieces common = CommonPieces();
    QMap<QString, Pieces> folders;
    for (const QString& path : SourceFiles(QStringLiteral("src")))
        AddPieces(path, folders[path.section(u'/', 1, 1)]);
    for (Pieces& pieces : folders)
        pieces.unite(common);
    return folders;
}

bool IsBlankBetweenPlaces(const QString& text, qsizetype place) {
    return text[place] == u' ' && place > 0 && place + 1 < text.size() &&
           text[place - 1] == variablePlace && text[place + 1] == variablePlace;
}

// Whether pieces laid end to end give the text, with anything at its variable places.
bool IsMadeOf(const Pieces& pieces, const QString& text) {
    std::vector<bool> reached(static_cast<std::size_t>(text.size()) + 1);
    reached[0] = true;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (!reached[static_cast<std::size_t>(place)])
            continue;
        if (text[place] == variablePlace || IsBlankBetweenPlaces(text, place))
            reached[static_cast<std::size_t>(place) + 1] = true;
        for (const QString& piece : pieces)
            if (QStringView(text).mid(place).startsWith(piece))
                reached[static_cast<std::size_t>(place + piece.size())] = true;
    }
    return reached.back();
}

bool StandsInASource(const QMap<QString, Pieces>& folders, const QString& text) {
    return std::any_of(folders.begin(), folders.end(),
                       [&text](const Pieces& pieces) { return IsMadeOf(pieces, text); });
}

std::string Missing(const QString& list) {
    static const QMap<QString, Pieces> folders = PiecesByFolder();
    std::string missing;
    for (const ListedText& row : ReadTextList(list))
        if (!StandsInASource(folders, row.text))
            missing += row.place.toStdString() + '\t' + Printed(row.text) + '\n';
    return missing;
}
} // namespace

TEST(ListedTexts, OfTheRunningProgramStandInItsSources) {
    EXPECT_EQ(Missing(QStringLiteral("running")), "");
}

TEST(ListedTexts, OfTheProgramWithoutAWindowStandInItsSources) {
    EXPECT_EQ(Missing(QStringLiteral("quentor-cli")), "");
}

TEST(ListedTexts, OfBoxesStandInTheSources) {
    EXPECT_EQ(Missing(QStringLiteral("messages")), "");
}

TEST(ListedTexts, HaveTheKindsThatAreTold) {
    static const QSet<QString> kinds{
        QStringLiteral("title"),  QStringLiteral("caption"),     QStringLiteral("key"),
        QStringLiteral("head"),   QStringLiteral("tooltip"),     QStringLiteral("entry"),
        QStringLiteral("hint"),   QStringLiteral("spoken"),      QStringLiteral("status"),
        QStringLiteral("dialog"), QStringLiteral("progress"),    QStringLiteral("report"),
        QStringLiteral("name"),   QStringLiteral("description"), QStringLiteral("words"),
        QStringLiteral("message")};
    for (const QString& list : TextListNames())
        for (const ListedText& row : ReadTextList(list))
            EXPECT_TRUE(kinds.contains(row.kind))
                << list.toStdString() << ": " << Printed(row.text);
}
