#include "help/views/HelpUnderTest.h"

#include <QScrollBar>
#include <QTextBlock>

namespace {
class HelpWindow : public HelpUnderTest {
protected:
    // Clicks the link with this text on the page.
    void ClickLink(const char* text) {
        const QTextCursor found = Guide().document()->find(QString::fromLatin1(text));
        ASSERT_FALSE(found.isNull()) << text;
        ASSERT_TRUE(found.charFormat().isAnchor()) << text;
        Guide().setTextCursor(found);
        Guide().ensureCursorVisible();
        const QPoint place = Guide().cursorRect(found).center() - QPoint(8, 0);
        QTest::mouseClick(Guide().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
};
} // namespace

TEST_F(HelpWindow, OpensOnThePageOfTheView) {
    Open("frmTrending");
    EXPECT_EQ(Shown(), "trending.md");
    EXPECT_EQ(Part<QListWidget>("lstContents").currentItem()->text().toStdString(), "Trending");
    Open("frmStatusTable");
    EXPECT_EQ(Shown(), "status-table.md");
}

TEST_F(HelpWindow, OpensOnTheFirstPageForAViewWithoutOne) {
    Open("frmUnknown");
    EXPECT_EQ(Shown(), "index.md");
}

TEST_F(HelpWindow, TheContentsListLeadsToEveryPage) {
    Open("frmMain");
    auto& contents = Part<QListWidget>("lstContents");
    ASSERT_EQ(contents.count(), static_cast<int>(GuidePages().size()));
    for (int page = 0; page < contents.count(); ++page) {
        ClickRow("lstContents", page);
        EXPECT_EQ(Shown(), GuidePages()[static_cast<std::size_t>(page)].file.toStdString());
        EXPECT_EQ(Guide().document()->firstBlock().text(), contents.item(page)->text());
        EXPECT_EQ(Guide().verticalScrollBar()->value(), 0);
    }
}

TEST_F(HelpWindow, BackAndForwardByButtonAndByKey) {
    Open("frmMain");
    EXPECT_FALSE(Part<QToolButton>("cmdBack").isEnabled());
    ClickRow("lstContents", GuidePageOfFile(QStringLiteral("faults.md")));
    ClickRow("lstContents", GuidePageOfFile(QStringLiteral("names.md")));
    Press("cmdBack");
    EXPECT_EQ(Shown(), "faults.md");
    QTest::keyClick(&help_, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Shown(), "browser.md");
    EXPECT_FALSE(Part<QToolButton>("cmdBack").isEnabled());
    Press("cmdForward");
    EXPECT_EQ(Shown(), "faults.md");
    EXPECT_EQ(Part<QListWidget>("lstContents").currentRow(),
              GuidePageOfFile(QStringLiteral("faults.md")));
    QTest::keyClick(&help_, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Shown(), "names.md");
    EXPECT_FALSE(Part<QToolButton>("cmdForward").isEnabled());
}

TEST_F(HelpWindow, ALinkLeadsToItsPage) {
    Open("frmMDIMain");
    ClickLink("NicNames and descriptions");
    EXPECT_EQ(Shown(), "names.md");
    EXPECT_TRUE(Part<QToolButton>("cmdBack").isEnabled());
}

TEST_F(HelpWindow, EscapeClosesIt) {
    Open("frmMain");
    QTest::keyClick(&help_, Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
}

TEST_F(HelpWindow, IsNotModal) {
    Open("frmMain");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
