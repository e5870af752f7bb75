#include "controls/ViewHelpers.h"

#include "base/ViewLoop.h"
#include <gtest/gtest.h>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

namespace {
class OtherLoop : public ViewLoop {
public:
    Step TakeStep() override { return Step::Rest; }
};

class LoopDialog : public QDialog, public ViewLoop {
public:
    Step TakeStep() override { return Step::Rest; }
};
} // namespace

TEST(ViewHelpers, CenterFormPutsADialogInTheMiddleOfItsWindow) {
    QWidget window;
    window.setGeometry(100, 100, 600, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QDialog dialog(&window);
    dialog.resize(200, 100);
    CenterForm(dialog);
    const QPoint middle = window.frameGeometry().center();
    EXPECT_NEAR(dialog.frameGeometry().center().x(), middle.x(), 1);
    EXPECT_NEAR(dialog.frameGeometry().center().y(), middle.y(), 1);
}

TEST(ViewHelpers, CenterFormKeepsADialogOnTheScreen) {
    QWidget window;
    window.setGeometry(-500, -300, 200, 200);
    window.show();
    QDialog dialog(&window);
    dialog.resize(300, 200);
    CenterForm(dialog);
    EXPECT_GE(dialog.x(), dialog.screen()->availableGeometry().left());
    EXPECT_GE(dialog.y(), dialog.screen()->availableGeometry().top());
}

TEST(ViewHelpers, SelectAllTextSelectsFromTheStart) {
    QLineEdit entry("B8176");
    SelectAllText(entry);
    EXPECT_EQ(entry.selectionStart(), 0);
    EXPECT_EQ(entry.selectionLength(), 5);
}

TEST(ViewHelpers, AModalViewBlocksAllLoopsButItsOwn) {
    OtherLoop other;
    LoopDialog view;
    EXPECT_FALSE(BlockedByModalView(other));
    view.setModal(true);
    view.show();
    EXPECT_TRUE(BlockedByModalView(other));
    EXPECT_FALSE(BlockedByModalView(view));
    view.hide();
    EXPECT_FALSE(BlockedByModalView(other));
}
