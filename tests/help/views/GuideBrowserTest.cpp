#include "help/views/GuideBrowser.h"

#include "help/GuidePages.h"
#include <gtest/gtest.h>
#include <QImage>
#include <QTest>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>

namespace {
QStringList PicturesOf(QTextDocument& document) {
    QStringList names;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            if (piece.fragment().charFormat().isImageFormat())
                names.append(piece.fragment().charFormat().toImageFormat().name());
    return names;
}

QImage Drawn(QTextDocument& document, const QString& picture) {
    return document.resource(QTextDocument::ImageResource, QUrl(picture)).value<QImage>();
}

int WidthOf(QTextDocument& document, const QString& picture) {
    return qRound(Drawn(document, picture).deviceIndependentSize().width());
}

constexpr int start = 0; // a page with a picture
} // namespace

TEST(GuideBrowser, ThePlainTextIsThatOfTheDocumentShown) {
    GuideBrowser guide;
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page) {
        guide.ShowPage(page);
        ASSERT_EQ(guide.Page(), page);
        EXPECT_EQ(GuideBrowser::PlainText(page), guide.toPlainText()) << page;
    }
}

TEST(GuideBrowser, EveryPictureOfEveryPageIsDrawn) {
    GuideBrowser guide;
    guide.resize(600, 400);
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page) {
        guide.ShowPage(page);
        for (const QString& picture : PicturesOf(*guide.document()))
            EXPECT_EQ(Drawn(*guide.document(), picture).depth(), 32) << picture.toStdString();
    }
}

TEST(GuideBrowser, PicturesFollowTheWidthOfThePage) {
    GuideBrowser guide;
    guide.resize(600, 400);
    guide.show();
    guide.ShowPage(start);
    const QStringList pictures = PicturesOf(*guide.document());
    ASSERT_FALSE(pictures.isEmpty());
    const int narrow = WidthOf(*guide.document(), pictures.first());
    EXPECT_LE(narrow, guide.viewport()->width());
    EXPECT_GT(narrow, 450);
    guide.resize(900, 400);
    EXPECT_GT(WidthOf(*guide.document(), pictures.first()), narrow + 200);
    guide.resize(3000, 400);
    EXPECT_EQ(WidthOf(*guide.document(), pictures.first()), 1280) << "never bigger than drawn";
}

TEST(GuideBrowser, NoPageIsWiderThanTheWindow) {
    GuideBrowser guide;
    guide.resize(640, 480);
    guide.show();
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page) {
        guide.ShowPage(page);
        EXPECT_LE(guide.document()->size().width(), guide.viewport()->width())
            << GuideTitle(page).toStdString();
    }
}

TEST(GuideBrowser, TablesHaveRules) {
    GuideBrowser guide;
    guide.ShowPage(start);
    int tables = 0;
    for (QTextFrame* frame : guide.document()->rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame)) {
            EXPECT_TRUE(table->format().borderCollapse());
            ++tables;
        }
    EXPECT_GE(tables, 1);
}

TEST(GuideBrowser, AWrongPageChangesNothing) {
    GuideBrowser guide;
    guide.ShowPage(start);
    guide.ShowPage(-1);
    guide.ShowPage(1000);
    EXPECT_EQ(guide.Page(), start);
}
