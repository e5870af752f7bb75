#include "controls/MessageBoxStyle.h"

#include "base/Dialogs.h"
#include <algorithm>
#include <QRegularExpression>

namespace {
constexpr int abortAnswer = 3;
constexpr int ignoreAnswer = 5;

std::vector<QMessageBox::StandardButton> Buttons(int number) {
    switch (number) {
    case 1:
        return {QMessageBox::Ok, QMessageBox::Cancel};
    case 2:
        return {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore};
    case 3:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case 4:
        return {QMessageBox::Yes, QMessageBox::No};
    case 5:
        return {QMessageBox::Retry, QMessageBox::Cancel};
    default:
        return {QMessageBox::Ok};
    }
}

QMessageBox::Icon Icon(int number) {
    switch (number) {
    case 1:
        return QMessageBox::Critical;
    case 2:
        return QMessageBox::Question;
    case 3:
        return QMessageBox::Warning;
    case 4:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}
} // namespace

MessageBoxStyle StyleOfNumber(int style) {
    MessageBoxStyle result;
    result.buttons = Buttons(style % 16);
    result.icon = Icon(style / 16 % 16);
    const std::size_t position = static_cast<std::size_t>(style / 256 % 4);
    result.defaultButton = result.buttons[std::min(position, result.buttons.size() - 1)];
    return result;
}

int AnswerOfButton(QMessageBox::StandardButton button) {
    switch (button) {
    case QMessageBox::Ok:
        return MsgAnswer::Ok;
    case QMessageBox::Abort:
        return abortAnswer;
    case QMessageBox::Retry:
        return MsgAnswer::Retry;
    case QMessageBox::Ignore:
        return ignoreAnswer;
    case QMessageBox::Yes:
        return MsgAnswer::Yes;
    case QMessageBox::No:
        return MsgAnswer::No;
    default:
        return MsgAnswer::Cancel;
    }
}

QString WithLineFeeds(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

QString TabsAsColumns(const QString& text) {
    static const QRegularExpression tabs(QStringLiteral("\t+"));
    const QString cell = QStringLiteral("<td%1 style=\"white-space:pre\">%2</td>");
    const QString wide = QStringLiteral(" colspan=\"2\"");
    QString table = QStringLiteral("<table cellspacing=\"0\" cellpadding=\"0\">");
    for (const QString& line : WithLineFeeds(text).split(u'\n')) {
        const qsizetype gap = line.indexOf(tabs);
        const QString left = (gap < 0 ? line : line.left(gap)).toHtmlEscaped();
        const QString right = gap < 0 ? QString() : line.mid(gap).remove(tabs).toHtmlEscaped();
        table += QStringLiteral("<tr>");
        if (gap < 0)
            table += cell.arg(wide, left.isEmpty() ? QStringLiteral("&nbsp;") : left);
        else
            table +=
                cell.arg(QString(), left + QStringLiteral("    ")) + cell.arg(QString(), right);
        table += QStringLiteral("</tr>");
    }
    return table + QStringLiteral("</table>");
}
