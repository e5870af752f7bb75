#include "help/GuidePages.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {
// What stands in the brackets of links or, with a "!" before them, of pictures.
QStringList Targets(const QString& text, bool pictures) {
    static const QRegularExpression pattern(QStringLiteral("(!?)\\[[^\\]]*\\]\\(([^)]*)\\)"));
    QStringList targets;
    QRegularExpressionMatchIterator found = pattern.globalMatch(text);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(1).isEmpty() != pictures)
            targets.append(match.captured(2));
    }
    return targets;
}

int PageCount() {
    return static_cast<int>(GuidePages().size());
}

std::string FileOf(int page) {
    return GuidePages()[static_cast<std::size_t>(page)].file.toStdString();
}
} // namespace

TEST(GuidePages, EveryPageExistsAndHasATitleAndAText) {
    for (int page = 0; page < PageCount(); ++page) {
        EXPECT_FALSE(GuideTitle(page).isEmpty()) << FileOf(page);
        EXPECT_GT(GuideText(page).size(), 300) << FileOf(page);
    }
}

TEST(GuidePages, EveryFileOfTheGuideIsAPage) {
    const QDir folder(QStringLiteral(QUENTOR_SOURCE_FOLDER "/docs/guide"));
    const QStringList files = folder.entryList({QStringLiteral("*.md")});
    EXPECT_EQ(files.size(), PageCount());
    for (const QString& file : files)
        EXPECT_GE(GuidePageOfFile(file), 0) << file.toStdString();
}

TEST(GuidePages, TitlesAreDifferent) {
    QSet<QString> titles;
    for (int page = 0; page < PageCount(); ++page)
        titles.insert(GuideTitle(page));
    EXPECT_EQ(titles.size(), PageCount());
}

TEST(GuidePages, EveryLinkLeadsToAPage) {
    int links = 0;
    for (int page = 0; page < PageCount(); ++page) {
        for (const QString& target : Targets(GuideText(page), false)) {
            EXPECT_GE(GuidePageOfFile(target), 0) << FileOf(page) << ": " << target.toStdString();
            ++links;
        }
    }
    EXPECT_GT(links, PageCount());
}

TEST(GuidePages, EveryPictureIsBuiltIn) {
    int pictures = 0;
    for (int page = 0; page < PageCount(); ++page) {
        for (const QString& target : Targets(GuideText(page), true)) {
            EXPECT_TRUE(QFile::exists(QDir::cleanPath(GuideFolder() + target)))
                << FileOf(page) << ": " << target.toStdString();
            ++pictures;
        }
    }
    EXPECT_GT(pictures, 10);
}

TEST(GuidePages, EveryPictureThatIsBuiltInIsShown) {
    GuideText(0);
    QStringList shown;
    for (int page = 0; page < PageCount(); ++page)
        shown += Targets(GuideText(page), true);
    const QStringList pictures = QDir(QStringLiteral(":/docs/pictures")).entryList();
    EXPECT_FALSE(pictures.isEmpty());
    for (const QString& picture : pictures)
        EXPECT_TRUE(shown.contains(QStringLiteral("../pictures/") + picture))
            << picture.toStdString();
}

TEST(GuidePages, TheFirstPageLeadsToEveryOther) {
    const QStringList targets = Targets(GuideText(0), false);
    for (int page = 1; page < PageCount(); ++page)
        EXPECT_TRUE(targets.contains(QString::fromStdString(FileOf(page)))) << FileOf(page);
}

TEST(GuidePages, EveryViewHasAPage) {
    const QStringList views =
        QStringLiteral("frmMDIMain frmMain frmNewFile frmCopyFile frmSetupComm frmDownloadProg "
                       "frmDataXfr frmWaitDisplay frmStatusTable frmTrending frmTrendingPrint "
                       "frmTargetBoard frmTiming frmPLSView frmViewResults frmEditDoc frmSplash "
                       "frmAbout frmSysInfo frmHelp")
            .split(u' ');
    for (const QString& view : views) {
        int pages = 0;
        for (const GuidePage& page : GuidePages())
            pages += static_cast<int>(page.views.count(view));
        EXPECT_EQ(pages, 1) << view.toStdString();
    }
}

TEST(GuidePages, AViewIsExplainedByItsOwnPage) {
    EXPECT_EQ(FileOf(GuidePageOfView(QStringLiteral("frmTrending"))), "trending.md");
    EXPECT_EQ(FileOf(GuidePageOfView(QStringLiteral("frmMain"))), "browser.md");
}

TEST(GuidePages, AViewWithoutAPageGetsTheFirst) {
    EXPECT_EQ(GuidePageOfView(QStringLiteral("frmUnknown")), 0);
    EXPECT_EQ(GuidePageOfView(QString()), 0);
}

TEST(GuidePages, APlaceInAPageIsThatPage) {
    EXPECT_EQ(GuidePageOfFile(QStringLiteral("faults.md#line")),
              GuidePageOfFile(QStringLiteral("faults.md")));
    EXPECT_EQ(GuidePageOfFile(QStringLiteral("other.md")), -1);
}

TEST(GuidePages, AWrongPositionHasNoTextAndNoTitle) {
    for (const int page : {-1, PageCount()}) {
        EXPECT_TRUE(GuideText(page).isEmpty());
        EXPECT_TRUE(GuideTitle(page).isEmpty());
    }
}
