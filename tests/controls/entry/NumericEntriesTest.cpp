#include "controls/entry/NumericEntries.h"

#include "controls/entry/EntryUpDown.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include <array>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
// A view with two entries, 1 to 32 with the value 5 and 0 to 59 with the value 30, and a button.
class NumericEntriesTest : public testing::Test {
protected:
    NumericEntriesTest() {
        auto* layout = new QVBoxLayout(&window);
        for (std::size_t i = 0; i < 2; ++i) {
            boxes[i] = new QLineEdit(i == 0 ? "5" : "30");
            upDowns[i] = new EntryUpDown(*boxes[i]);
            layout->addWidget(boxes[i]);
            layout->addWidget(upDowns[i]);
            entries.Add(static_cast<int>(i), *boxes[i], *upDowns[i]);
        }
        upDowns[0]->SetRange(1, 32);
        upDowns[1]->SetRange(0, 59);
        layout->addWidget(&button);
        Listen();
        window.show();
        QApplication::setActiveWindow(&window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        button.setFocus();
        heard.clear();
    }

    void Listen() {
        QObject::connect(&entries, &NumericEntries::Entered,
                         [this](int i) { heard << QString("entered %1").arg(i); });
        QObject::connect(&entries, &NumericEntries::Abandoned,
                         [this](int i) { heard << QString("abandoned %1").arg(i); });
        QObject::connect(&entries, &NumericEntries::Accepted, [this](int i, const QString& text) {
            heard << QString("accepted %1 %2").arg(i).arg(text);
        });
        QObject::connect(&entries, &NumericEntries::Stepped, [this](int i, const QString& text) {
            heard << QString("stepped %1 %2").arg(i).arg(text);
        });
    }

    // Puts the focus into an entry and types over what stands there.
    void Type(std::size_t i, const QString& text) {
        boxes[i]->setFocus(Qt::TabFocusReason);
        heard.clear();
        QTest::keyClicks(boxes[i], text);
    }

    void ExpectRefusal() {
        dialogs.ExpectBox("Only a Number Between 1 and 32 can be Entered", 64, "Title 0", 1);
    }

    void ClickArrow(std::size_t i, const char* name) {
        QTest::mouseClick(upDowns[i]->findChild<QToolButton*>(name), Qt::LeftButton);
    }

    QWidget window;
    QPushButton button;
    ScriptedDialogs dialogs;
    QPushButton* cmdDefault = MakeDefaultButton(window);
    NumericEntries entries{2, dialogs, *cmdDefault,
                           [](int i) { return QString("Title %1").arg(i); }};
    std::array<QLineEdit*, 2> boxes{};
    std::array<EntryUpDown*, 2> upDowns{};
    QStringList heard;
};
} // namespace

TEST_F(NumericEntriesTest, TheWholeTextIsSelectedWhenTheEntryGetsTheFocus) {
    boxes[0]->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(boxes[0]->selectedText(), "5");
    EXPECT_EQ(heard, QStringList{"entered 0"});
    QTest::mouseClick(boxes[1], Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes[1]->selectedText(), "30");
}

TEST_F(NumericEntriesTest, NothingIsAcceptedWhileTyping) {
    Type(0, "12");
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(boxes[0]->text(), "12");
}

TEST_F(NumericEntriesTest, EnterMovesOnAndTheTextIsAcceptedOnce) {
    Type(0, "12");
    QTest::keyClick(boxes[0], Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(boxes[1]->hasFocus());
    EXPECT_EQ(heard, (QStringList{"accepted 0 12", "entered 1"}));
}

TEST_F(NumericEntriesTest, TheKeypadsEnterMovesOnToo) {
    Type(0, "12");
    QTest::keyClick(boxes[0], Qt::Key_Enter);
    QCoreApplication::processEvents();
    EXPECT_TRUE(boxes[1]->hasFocus());
}

TEST_F(NumericEntriesTest, ARefusedTextIsToldAndTheOldValueComesBackWithTheFocus) {
    Type(0, "33");
    ExpectRefusal();
    QTest::keyClick(boxes[0], Qt::Key_Tab);
    EXPECT_TRUE(entries.Refuses());
    QCoreApplication::processEvents();
    EXPECT_FALSE(entries.Refuses());
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_TRUE(boxes[0]->hasFocus());
    EXPECT_EQ(boxes[0]->selectedText(), "5");
    EXPECT_EQ(heard, QStringList{"entered 0"});
    EXPECT_EQ(boxes[1]->text(), "30");
}

TEST_F(NumericEntriesTest, LettersAreRefusedLikeANumberOutOfRange) {
    Type(0, "abc");
    ExpectRefusal();
    QTest::mouseClick(&button, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_TRUE(boxes[0]->hasFocus());
}

TEST_F(NumericEntriesTest, TheFirstEscapeRestoresAndSelects) {
    Type(0, "12");
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_EQ(boxes[0]->selectedText(), "5");
    EXPECT_TRUE(boxes[0]->hasFocus());
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(NumericEntriesTest, TheSecondEscapeLeavesForTheHiddenButtonAndTakesNothing) {
    Type(0, "12");
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    EXPECT_TRUE(cmdDefault->hasFocus());
    EXPECT_EQ(heard, QStringList{"abandoned 0"});
}

TEST_F(NumericEntriesTest, AKeyBetweenTwoEscapesMakesTheSecondAFirst) {
    Type(0, "12");
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    QTest::keyClick(boxes[0], Qt::Key_7);
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_TRUE(boxes[0]->hasFocus());
}

TEST_F(NumericEntriesTest, AnEntryWhoseOwnValueIsRefusedCanBeLeftByEscape) {
    boxes[0]->setText("0");
    Type(0, "");
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    QTest::keyClick(boxes[0], Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_TRUE(cmdDefault->hasFocus());
}

TEST_F(NumericEntriesTest, TheUpDownTakesTheTextOnceAndMovesTheFocusAway) {
    Type(0, "12");
    ClickArrow(0, "up");
    EXPECT_EQ(boxes[0]->text(), "13");
    EXPECT_TRUE(cmdDefault->hasFocus());
    EXPECT_EQ(heard, QStringList{"stepped 0 13"});
}

TEST_F(NumericEntriesTest, TheUpDownOfAnotherEntryTakesWhatWasTypedBeforeIt) {
    Type(0, "7");
    ClickArrow(1, "up");
    EXPECT_EQ(heard, (QStringList{"accepted 0 7", "stepped 1 31"}));
    EXPECT_TRUE(cmdDefault->hasFocus());
}

TEST_F(NumericEntriesTest, TheUpDownOfAnotherEntryDoesNotHideARefusal) {
    Type(0, "99");
    ExpectRefusal();
    ClickArrow(1, "up");
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.filter("accepted 0"), QStringList());
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_TRUE(boxes[0]->hasFocus());
}

TEST_F(NumericEntriesTest, TheUpDownAtItsEndChangesNothing) {
    boxes[0]->setText("1");
    ClickArrow(0, "down");
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(boxes[0]->text(), "1");
}

TEST_F(NumericEntriesTest, AnotherWindowInFrontIsNoLeaving) {
    Type(0, "33");
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    QCoreApplication::processEvents();
    EXPECT_TRUE(heard.isEmpty());
    QApplication::setActiveWindow(&window);
    QCoreApplication::processEvents();
    EXPECT_EQ(boxes[0]->text(), "33");
    EXPECT_TRUE(heard.isEmpty());
}

TEST_F(NumericEntriesTest, AnEntryThatIsDisabledIsLeftWithoutTakingItsText) {
    Type(0, "33");
    entries.SetEnabled(0, false);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, QStringList{"abandoned 0"});
    EXPECT_FALSE(upDowns[0]->isEnabled());
}

TEST_F(NumericEntriesTest, AViewThatIsClosedShowsNoRefusalAnyMore) {
    Type(0, "33");
    QTest::keyClick(boxes[0], Qt::Key_Tab);
    window.hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(entries.Refuses());
    EXPECT_TRUE(dialogs.Boxes().empty());
}

TEST_F(NumericEntriesTest, TheHiddenButtonIsNoPartOfTheTabOrder) {
    cmdDefault->setFocus();
    EXPECT_TRUE(cmdDefault->hasFocus());
    QTest::keyClick(cmdDefault, Qt::Key_Tab);
    EXPECT_TRUE(boxes[0]->hasFocus() || button.hasFocus());
    QTest::keyClick(boxes[0], Qt::Key_Tab);
    QTest::keyClick(boxes[1], Qt::Key_Tab);
    EXPECT_FALSE(cmdDefault->hasFocus());
}

TEST(EntryUpDown, SetValueFillsTheBoxWithinTheRangeAndIsNoChange) {
    QLineEdit box;
    EntryUpDown upDown(box);
    upDown.SetRange(1, 32);
    int changes = 0;
    QObject::connect(&upDown, &EntryUpDown::Changed, [&] { ++changes; });
    upDown.SetValue(40);
    EXPECT_EQ(box.text(), "32");
    EXPECT_EQ(upDown.Value(), 32);
    EXPECT_EQ(changes, 0);
}

// An arrow that is held down repeats its click, and the release may never come when a message box
// takes the mouse away: it must neither step the number behind the box nor go on after it.
TEST_F(NumericEntriesTest, AnArrowHeldDownEndsBehindAModalWindow) {
    auto* up = upDowns[0]->findChild<QToolButton*>("up");
    QTest::mousePress(up, Qt::LeftButton);
    ASSERT_TRUE(up->isDown());
    QDialog box(&window);
    box.setModal(true);
    box.show();
    Q_EMIT up->clicked(); // what the repetition of a button that is down does
    EXPECT_EQ(boxes[0]->text(), "5");
    EXPECT_EQ(heard, QStringList());
    EXPECT_FALSE(up->isDown()) << "a button that is not down repeats nothing";
    box.hide();
    ClickArrow(0, "up");
    EXPECT_EQ(boxes[0]->text(), "6");
}
