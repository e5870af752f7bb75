#include "controls/MessageBoxStyle.h"

#include "base/Dialogs.h"
#include <gtest/gtest.h>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

namespace {
void ExpectStyle(int number, QMessageBox::Icon icon,
                 const std::vector<QMessageBox::StandardButton>& buttons,
                 QMessageBox::StandardButton defaultButton) {
    const MessageBoxStyle style = StyleOfNumber(number);
    EXPECT_EQ(style.icon, icon) << number;
    EXPECT_EQ(style.buttons, buttons) << number;
    EXPECT_EQ(style.defaultButton, defaultButton) << number;
}
} // namespace

TEST(MessageBoxStyle, NumbersStandForIconButtonsAndDefault) {
    using Box = QMessageBox;
    ExpectStyle(0, Box::NoIcon, {Box::Ok}, Box::Ok);
    ExpectStyle(16, Box::Critical, {Box::Ok}, Box::Ok);
    ExpectStyle(21, Box::Critical, {Box::Retry, Box::Cancel}, Box::Retry);
    ExpectStyle(35, Box::Question, {Box::Yes, Box::No, Box::Cancel}, Box::Yes);
    ExpectStyle(36, Box::Question, {Box::Yes, Box::No}, Box::Yes);
    ExpectStyle(48, Box::Warning, {Box::Ok}, Box::Ok);
    ExpectStyle(64, Box::Information, {Box::Ok}, Box::Ok);
    ExpectStyle(67, Box::Information, {Box::Yes, Box::No, Box::Cancel}, Box::Yes);
    ExpectStyle(69, Box::Information, {Box::Retry, Box::Cancel}, Box::Retry);
    ExpectStyle(308, Box::Warning, {Box::Yes, Box::No}, Box::No);
}

TEST(MessageBoxStyle, ButtonsAnswerByNumber) {
    EXPECT_EQ(AnswerOfButton(QMessageBox::Ok), MsgAnswer::Ok);
    EXPECT_EQ(AnswerOfButton(QMessageBox::Cancel), MsgAnswer::Cancel);
    EXPECT_EQ(AnswerOfButton(QMessageBox::Retry), MsgAnswer::Retry);
    EXPECT_EQ(AnswerOfButton(QMessageBox::Yes), MsgAnswer::Yes);
    EXPECT_EQ(AnswerOfButton(QMessageBox::No), MsgAnswer::No);
}

TEST(MessageBoxStyle, LineEndsOfAnyKindBecomeLineFeeds) {
    EXPECT_EQ(WithLineFeeds("a\r\nb\rc\nd\r\r\ne").toStdString(), "a\nb\nc\nd\n\ne");
}

TEST(MessageBoxStyle, TabsBecomeColumnsAndMarkupStaysText) {
    const QString table = TabsAsColumns("Head <b>\r  Ident:\t\tA&B\r\r\tSize: 1");
    QTextDocument document;
    document.setHtml(table);
    EXPECT_EQ(document.rootFrame()->childFrames().size(), 1);
    const auto* columns = qobject_cast<QTextTable*>(document.rootFrame()->childFrames().first());
    ASSERT_NE(columns, nullptr);
    EXPECT_EQ(columns->rows(), 4);
    EXPECT_EQ(columns->columns(), 2);
    const auto text = [&](int row, int column) {
        return columns->cellAt(row, column).firstCursorPosition().block().text().toStdString();
    };
    EXPECT_EQ(text(0, 0), "Head <b>");
    EXPECT_EQ(text(1, 0), "  Ident:    ");
    EXPECT_EQ(text(1, 1), "A&B");
    EXPECT_EQ(text(3, 1), "Size: 1");
}
