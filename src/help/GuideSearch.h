#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A place in the guide where the words that are looked for stand.
struct GuideHit {
    int page = 0;     ///< position of the page
    int position = 0; ///< first character in the page's text, from 0
    int length = 0;   ///< characters, 1 or more
    QString excerpt;  ///< the words with some text on either side, in one line
};

/// All places where `words` stand, page by page and from top to bottom. `texts` holds the plain
/// text of each page. Letter case does not matter; any run of blanks and line ends in a text
/// matches any run of blanks in `words`. Blanks around `words` do not count, and nothing is found
/// for empty words.
std::vector<GuideHit> FindInGuide(const QStringList& texts, const QString& words);

/// Position in `hits` of the first hit that stands on `page` or behind it; 0 if there is none.
int FirstHitFrom(const std::vector<GuideHit>& hits, int page);
