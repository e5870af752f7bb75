#pragma once

#include <QMessageBox>
#include <QString>
#include <vector>

/// What a style number of a message box stands for.
struct MessageBoxStyle {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    std::vector<QMessageBox::StandardButton> buttons; ///< from left to right as numbered
    QMessageBox::StandardButton defaultButton = QMessageBox::Ok;
};

/// Takes a style number apart: units are the buttons (0 OK, 1 OK Cancel, 2 Abort Retry Ignore,
/// 3 Yes No Cancel, 4 Yes No, 5 Retry Cancel), sixteens the icon (16 critical, 32 question,
/// 48 exclamation, 64 information), 256s the default button (0 first, 256 second, 512 third).
MessageBoxStyle StyleOfNumber(int style);

/// Answer by number (MsgAnswer) of a button; 3 for Abort and 5 for Ignore.
int AnswerOfButton(QMessageBox::StandardButton button);

/// The text with one line feed for each line end, whether it was CR LF, CR or LF.
QString WithLineFeeds(QString text);

/// Text of parted lines in which tabs stand for columns, as a table in markup: a run of tabs parts
/// two columns, whatever the font makes of a tab. What looks like markup in the text is shown as
/// it stands.
QString TabsAsColumns(const QString& text);
