#include "help/GuidePages.h"

#include <algorithm>
#include <QFile>

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInGuide() {
    Q_INIT_RESOURCE(guide);
}

namespace {
GuidePage Page(const char* file, const char* views = "") {
    return {QString::fromLatin1(file), QString::fromLatin1(views).split(u' ', Qt::SkipEmptyParts)};
}

bool IsPage(int page) {
    return page >= 0 && page < static_cast<int>(GuidePages().size());
}

template <class Condition>
int PositionOf(Condition condition) {
    const auto& pages = GuidePages();
    const auto found = std::find_if(pages.begin(), pages.end(), condition);
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}
} // namespace

const std::vector<GuidePage>& GuidePages() {
    static const std::vector<GuidePage> pages = {
        Page("index.md", "frmMDIMain frmSplash"),
        Page("browser.md", "frmMain"),
        Page("program-sets.md", "frmNewFile frmCopyFile"),
        Page("port-settings.md", "frmSetupComm"),
        Page("download-program.md", "frmDownloadProg"),
        Page("upload-program.md"),
        Page("data-transfer.md", "frmDataXfr frmWaitDisplay"),
        Page("status-table.md", "frmStatusTable"),
        Page("names.md"),
        Page("trending.md", "frmTrending frmTrendingPrint"),
        Page("target-board.md", "frmTargetBoard"),
        Page("pls-timing.md", "frmTiming"),
        Page("pls-transfer.md"),
        Page("pls-viewer.md", "frmPLSView"),
        Page("results.md", "frmViewResults"),
        Page("variable-documentation.md", "frmEditDoc"),
        Page("keyboard.md"),
        Page("faults.md"),
        Page("support.md", "frmAbout frmSysInfo frmHelp"),
    };
    return pages;
}

int GuidePageOfView(const QString& view) {
    return std::max(
        0, PositionOf([&view](const GuidePage& page) { return page.views.contains(view); }));
}

int GuidePageOfFile(const QString& file) {
    const QString name = file.section(u'#', 0, 0);
    return PositionOf([&name](const GuidePage& page) { return page.file == name; });
}

QString GuideFolder() {
    static const bool broughtIn = (BringInGuide(), true);
    Q_UNUSED(broughtIn);
    return QStringLiteral(":/docs/guide/");
}

QString GuideText(int page) {
    if (!IsPage(page))
        return QString();
    QFile file(GuideFolder() + GuidePages()[static_cast<std::size_t>(page)].file);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString GuideTitle(int page) {
    const QString text = GuideText(page);
    return text.startsWith(QLatin1String("# ")) ? text.section(u'\n', 0, 0).mid(2).trimmed()
                                                : QString();
}
