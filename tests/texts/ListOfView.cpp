#include "ListOfView.h"

#include "ShownTexts.h"
#include "TextList.h"
#include <algorithm>
#include <QWidget>

namespace {
std::string Line(const char* what, const QString& control, const QString& kind,
                 const QString& text) {
    return what + control.toStdString() + '\t' + kind.toStdString() + '\t' + Printed(text) + '\n';
}

// A line ends on the screen however its end is written.
QString OnScreen(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

bool IsRowOf(const ListedText& row, const ShownText& shown) {
    return row.place == shown.control && row.kind == shown.kind &&
           IsListedText(OnScreen(shown.text), OnScreen(row.text));
}

// A text that is nothing but a variable place may have nothing to show.
bool MayBeEmpty(const ListedText& row) {
    return row.text == variablePlace;
}
} // namespace

std::string DifferencesFromList(const QWidget& view, QString list) {
    if (list.isEmpty())
        list = view.objectName();
    std::vector<ListedText> rows = ReadTextList(list);
    std::string differences;
    for (const ShownText& shown : TextsOf(view)) {
        const auto row = std::find_if(rows.begin(), rows.end(), [&shown](const ListedText& each) {
            return IsRowOf(each, shown);
        });
        if (row == rows.end())
            differences += Line("shown, not listed: ", shown.control, shown.kind, shown.text);
        else
            rows.erase(row); // each row stands for one text
    }
    for (const ListedText& row : rows)
        if (!MayBeEmpty(row))
            differences += Line("listed, not shown: ", row.place, row.kind, row.text);
    return differences.empty() ? differences : list.toStdString() + ":\n" + differences;
}
