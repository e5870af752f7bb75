#include "help/GuideSearch.h"

#include <gtest/gtest.h>

namespace {
const QStringList pages = {QStringLiteral("Faults and\nline failures. A fault, the Fault."),
                           QStringLiteral("Nothing here."), QStringLiteral("line\u00a0 failure")};
} // namespace

TEST(GuideSearch, FindsWordsInAllPagesFromTopToBottomWhateverTheirCase) {
    const auto hits = FindInGuide(pages, QStringLiteral("FAULT"));
    ASSERT_EQ(hits.size(), 3u);
    EXPECT_EQ(hits[0].page, 0);
    EXPECT_EQ(hits[0].position, 0);
    EXPECT_EQ(hits[0].length, 5);
    EXPECT_EQ(hits[1].position, 28);
    EXPECT_EQ(hits[2].position, 39);
}

TEST(GuideSearch, BlanksAndLineEndsMatchEachOther) {
    const auto hits = FindInGuide(pages, QStringLiteral("  and   line "));
    ASSERT_EQ(hits.size(), 1u);
    EXPECT_EQ(hits[0].position, 7);
    EXPECT_EQ(hits[0].length, 8);
    EXPECT_EQ(FindInGuide(pages, QStringLiteral("line failure")).size(), 2u);
}

TEST(GuideSearch, SignsStandForThemselves) {
    const QStringList page{QStringLiteral("B100.3 (bit) and B1003")};
    EXPECT_EQ(FindInGuide(page, QStringLiteral("B100.3")).size(), 1u);
    EXPECT_EQ(FindInGuide(page, QStringLiteral("(bit)")).size(), 1u);
    EXPECT_TRUE(FindInGuide(page, QStringLiteral("[")).empty());
}

TEST(GuideSearch, NothingIsFoundForNoWords) {
    EXPECT_TRUE(FindInGuide(pages, QString()).empty());
    EXPECT_TRUE(FindInGuide(pages, QStringLiteral("  ")).empty());
    EXPECT_TRUE(FindInGuide({}, QStringLiteral("fault")).empty());
}

TEST(GuideSearch, AnExcerptIsOneLineOfWholeWordsAroundThePlace) {
    const QString text = QStringLiteral("one two three four five six seven eight nine ten\n"
                                        "target\n"
                                        "eleven twelve thirteen fourteen fifteen sixteen "
                                        "seventeen eighteen");
    const auto hits = FindInGuide({text}, QStringLiteral("target"));
    ASSERT_EQ(hits.size(), 1u);
    EXPECT_EQ(hits[0].excerpt.toStdString(),
              "\u2026seven eight nine ten target eleven twelve thirteen fourteen fifteen "
              "sixteen\u2026");
}

TEST(GuideSearch, AnExcerptOfAShortTextIsTheText) {
    const auto hits = FindInGuide({QStringLiteral("Nothing\nhere.")}, QStringLiteral("here"));
    ASSERT_EQ(hits.size(), 1u);
    EXPECT_EQ(hits[0].excerpt.toStdString(), "Nothing here.");
}

TEST(GuideSearch, TheFirstPlaceFromAPageOn) {
    const auto hits = FindInGuide(pages, QStringLiteral("line failure"));
    EXPECT_EQ(FirstHitFrom(hits, 0), 0);
    EXPECT_EQ(FirstHitFrom(hits, 1), 1);
    EXPECT_EQ(FirstHitFrom(hits, 3), 0);
}
