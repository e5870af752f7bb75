#include "TrendingViewUnderTest.h"

#include "controls/entry/EntryUpDown.h"
#include "trending/views/GraphView.h"
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

TEST_F(TrendingView, ABitOf9BecomesABitOf7InTheEntry) {
    TypeAddress(QStringLiteral("b100.9"));
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "B100.7");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, ARefusedVariableGoesBackToTheFirstEntryAndKeepsTheFocus) {
    TypeAddress(QStringLiteral("X31"));
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "(none)");
    EXPECT_TRUE(Find<QComboBox>("cboAddress").hasFocus());
}

TEST_F(TrendingView, LeavingTheEntryTakesWhatWasTyped) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("w100"));
    Find<QCheckBox>("chkAcquire").setFocus();
    Until([&] { return entry.currentText() == QStringLiteral("W100"); });
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "W100");
}

TEST_F(TrendingView, LeavingTheEntryWithNoVariableKeepsTheFocus) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("X31"));
    Find<QCheckBox>("chkAcquire").setFocus();
    Until([&] { return entry.currentText() == TrendVariable::none && entry.hasFocus(); });
}

TEST_F(TrendingView, EscapeGivesTheTypedTextUp) {
    TypeAddress(QStringLiteral("B40"));
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("B4"));
    QTest::keyClick(&entry, Qt::Key_Escape);
    EXPECT_EQ(entry.currentText().toStdString(), "B40");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, TooManySamplesToGraphAreRefused) {
    QLineEdit& entry = Find<QLineEdit>("txtSamples");
    EXPECT_EQ(entry.text().toStdString(), "255");
    entry.setFocus();
    entry.setText(QStringLiteral("256"));
    dialogs.ExpectBoxTitled(QStringLiteral("Graphing Samples"), MsgAnswer::Ok);
    QTest::keyClick(&entry, Qt::Key_Return);
    Until([&] { return dialogs.Boxes().size() == 1; });
    EXPECT_EQ(dialogs.Boxes().at(0).text.toStdString(),
              "Only a Number Between 1 and 255 can be Entered");
}

TEST_F(TrendingView, EnterInTheEntryTakesTheVariableAsItIsTyped) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.lineEdit()->selectAll();
    QTest::keyClicks(&entry, QStringLiteral("b40"));
    QTest::keyClick(&entry, Qt::Key_Enter);
    EXPECT_EQ(entry.itemText(0).toStdString(), "B40");
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "B40");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, TheTabKeyTakesWhatWasTypedAndTheFocusGoesToTheDefaultButton) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.lineEdit()->selectAll();
    QTest::keyClicks(&entry, QStringLiteral("w100"));
    QTest::keyClick(&entry, Qt::Key_Tab);
    Until([&] { return Find<QPushButton>("cmdDefault").hasFocus(); });
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "W100");
}

TEST_F(TrendingView, AClickThatLeavesTheEntryCountsAndThenTheFocusGoesToTheDefaultButton) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    QCheckBox& acquire = Find<QCheckBox>("chkAcquire");
    entry.setFocus();
    entry.setEditText(QStringLiteral("b40"));
    QTest::mousePress(&acquire, Qt::LeftButton, {}, {8, 8});
    Until([&] { return entry.currentText() == QStringLiteral("B40"); });
    QTest::mouseRelease(&acquire, Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(acquire.isChecked());
    EXPECT_TRUE(view.Acquisition().Acquire());
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, AClickThatLeavesTheEntryWithNoVariableDoesNotCount) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    QCheckBox& acquire = Find<QCheckBox>("chkAcquire");
    entry.setFocus();
    entry.setEditText(QStringLiteral("X31"));
    QTest::mousePress(&acquire, Qt::LeftButton, {}, {8, 8});
    Until([&] { return entry.hasFocus(); });
    QTest::mouseRelease(&acquire, Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(acquire.isChecked());
    EXPECT_TRUE(entry.hasFocus());
}

TEST_F(TrendingView, AMenuAndAnotherWindowAreNoLeavingOfTheEntry) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("X3"));
    for (const Qt::FocusReason reason :
         {Qt::MenuBarFocusReason, Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent leave(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&entry, &leave);
        QCoreApplication::processEvents();
        EXPECT_EQ(entry.currentText().toStdString(), "X3");
    }
}

TEST_F(TrendingView, AnEntryLeftAsItStandsLetsTheFocusGo) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    QTest::keyClick(&entry, Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_FALSE(entry.hasFocus());
}

TEST_F(TrendingView, AVariableChosenFromTheListIsTakenAndANoneIsRefused) {
    TypeAddress(QStringLiteral("B40"));
    TypeAddress(QStringLiteral("W100"));
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    QTest::keyClick(&entry, Qt::Key_Down); // to B40
    EXPECT_EQ(entry.currentText().toStdString(), "B40");
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "B40");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
    entry.setFocus();
    QTest::keyClick(&entry, Qt::Key_End); // to (none), or the end of the text
    entry.setCurrentIndex(entry.count() - 1);
    Q_EMIT entry.activated(entry.count() - 1);
    EXPECT_EQ(entry.currentText().toStdString(), "B40");
    EXPECT_TRUE(entry.hasFocus());
}

TEST_F(TrendingView, TheFocusGoesToTheDefaultButtonAfterAnOptionAndAnInterval) {
    QTest::mouseClick(&Find<QRadioButton>("optOptions(1)"), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(Find<QComboBox>("cboOptions").isEnabled());
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
    QComboBox& interval = Find<QComboBox>("cboOptions");
    interval.setFocus();
    QTest::keyClick(&interval, Qt::Key_Down);
    EXPECT_EQ(view.Acquisition().TimerMilliseconds(), 100);
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
    QTest::mouseClick(&Find<QRadioButton>("optOptions(0)"), Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(interval.isEnabled());
    EXPECT_FALSE(view.Acquisition().TimerEnabled());
}

TEST_F(TrendingView, ANumberOfSamplesInRangeIsGraphedAndARefusedOneKeepsTheFocus) {
    QLineEdit& entry = Find<QLineEdit>("txtSamples");
    entry.setFocus();
    entry.selectAll();
    QTest::keyClicks(&entry, QStringLiteral("5"));
    QTest::keyClick(&entry, Qt::Key_Return);
    QTest::mouseClick(&Find<QPushButton>("cmdGraphData"), Qt::LeftButton);
    EXPECT_EQ(Find<GraphView>("picGraph").Surface().Top().lines.size(), 5u);
    entry.setFocus();
    entry.selectAll();
    QTest::keyClicks(&entry, QStringLiteral("0"));
    dialogs.ExpectBox(QStringLiteral("Only a Number Between 1 and 255 can be Entered"),
                      MsgStyle::Information, QStringLiteral("Graphing Samples"), MsgAnswer::Ok);
    QTest::keyClick(&entry, Qt::Key_Return);
    Until([&] { return dialogs.Boxes().size() == 1 && entry.hasFocus(); });
    EXPECT_EQ(entry.text().toStdString(), "5");
}

TEST_F(TrendingView, AnArrowStepsTheNumberOfSamplesToGraph) {
    QLineEdit& entry = Find<QLineEdit>("txtSamples");
    entry.setFocus();
    entry.selectAll();
    QTest::keyClicks(&entry, QStringLiteral("5"));
    QTest::keyClick(&entry, Qt::Key_Return);
    auto& arrows = Find<EntryUpDown>("updSamples");
    QTest::mouseClick(arrows.findChild<QToolButton*>(QStringLiteral("up")), Qt::LeftButton);
    EXPECT_EQ(entry.text().toStdString(), "6");
    QTest::mouseClick(&Find<QPushButton>("cmdGraphData"), Qt::LeftButton);
    EXPECT_EQ(Find<GraphView>("picGraph").Surface().Top().lines.size(), 6u);
}
