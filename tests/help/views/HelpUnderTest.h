#pragma once

#include "help/GuidePages.h"
#include "help/views/frmHelp.h"
#include "help/views/GuideBrowser.h"
#include "support/gui/ModalView.h"
#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>

/// The help window on the screen, and what a reader does in it.
class HelpUnderTest : public testing::Test {
protected:
    void Open(const char* view) {
        help_.ShowView(QString::fromLatin1(view));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&help_));
    }
    /// File of the page that is shown.
    std::string Shown() { return Guide().source().fileName().toStdString(); }

    template <class T>
    T& Part(const char* name) {
        return *PartOf<T>(help_, name);
    }
    GuideBrowser& Guide() { return Part<GuideBrowser>("txtGuide"); }
    void Press(const char* button) {
        QTest::mouseClick(&Part<QToolButton>(button), Qt::LeftButton);
    }
    void ClickRow(const char* list, int row) {
        auto& rows = Part<QListWidget>(list);
        rows.scrollToItem(rows.item(row));
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier,
                          rows.visualItemRect(rows.item(row)).center());
    }
    void Type(const char* words) {
        QTest::keyClick(&help_, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&Part<QLineEdit>("txtSearch"), QString::fromLatin1(words));
    }
    void PressInSearch(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&Part<QLineEdit>("txtSearch"), key, modifiers);
    }
    std::string Count() { return Part<QLabel>("lblHits").text().toStdString(); }
    std::string Selected() { return Guide().textCursor().selectedText().toStdString(); }

    frmHelp help_;
};
