#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A page of the user guide.
struct GuidePage {
    QString file;      ///< name of the Markdown file, "trending.md"
    QStringList views; ///< names of the views that it explains, "frmTrending"
};

/// The pages in the order of the contents list. The first is the page to begin with.
const std::vector<GuidePage>& GuidePages();

/// Position of the page that explains a view, 0 for a view that has none of its own.
int GuidePageOfView(const QString& view);
/// Position of the page in this file; -1 if there is none. A fragment ("#faults") does not matter.
int GuidePageOfFile(const QString& file);

/// Folder of the pages in the program's resources, ending with a separator. Pictures are found
/// relative to it.
QString GuideFolder();
/// Markdown text of the page at a position; empty if the position is not a page.
QString GuideText(int page);
/// The page's own title: the first heading of its text.
QString GuideTitle(int page);
