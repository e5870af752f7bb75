#include "help/GuidePages.h"
#include "shell/CommandTable.h"
#include "support/gui/WholeWindow.h"
#include <QRegularExpression>
#include <QSet>

// The guide calls commands by the captions that stand in the menus.

namespace {
QString Plain(const char* caption) {
    return QString::fromLatin1(caption).remove(u'&').remove(QStringLiteral("..."));
}

// "File, Save Halden Program As" of every entry that a user can see.
QSet<QString> MenuWords() {
    QSet<QString> words;
    for (const MenuTable& menu : MenuTables())
        for (const MenuEntry& entry : menu.entries)
            if (entry.start != CommandStart::Hidden && *entry.caption)
                words.insert(Plain(menu.caption) + QStringLiteral(", ") + Plain(entry.caption));
    return words;
}
} // namespace

TEST(GuideWords, EveryMenuEntryThatTheGuideNamesIsInTheMenus) {
    static const QRegularExpression named(
        QStringLiteral("\\*((?:File|Edit|View|Tools|Help),\\s[^*]+)\\*"));
    const QSet<QString> words = MenuWords();
    int count = 0;
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page) {
        QRegularExpressionMatchIterator found = named.globalMatch(GuideText(page));
        while (found.hasNext()) {
            const QString entry = found.next().captured(1).simplified();
            EXPECT_TRUE(words.contains(entry))
                << GuideTitle(page).toStdString() << ": " << entry.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 15);
}

namespace {
class GuideOfViews : public WholeWindow {};
} // namespace

TEST_F(GuideOfViews, EveryViewInsideTheMainWindowHasAPageOfItsOwn) {
    Start();
    EXPECT_GT(GuidePageOfView(Window().ActiveChildName()), 0);
    for (const char* view : {"frmStatusTable", "frmTrending", "frmTiming", "frmViewResults"})
        EXPECT_GT(GuidePageOfView(QString::fromLatin1(view)), 0) << view;
}
