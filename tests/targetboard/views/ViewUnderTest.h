#pragma once

#include "../BoardUnderTest.h"
#include "base/ViewLoop.h"
#include "controls/ViewHelpers.h"
#include "targetboard/views/frmTargetBoard.h"
#include <functional>
#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

/// The view over a simulated board. It is modal, so a test hands in what happens while it is up;
/// the loop gets its steps from the event loop, as in the program.
class ViewUnderTest : public BoardUnderTest {
public:
    explicit ViewUnderTest(int model);

    /// Shows the view on the set, runs `whileUp` once it is active and closes it.
    void Show(const std::function<void()>& whileUp);
    /// Lets events and steps go on until the test holds; fails after five seconds.
    void Until(const std::function<bool()>& test);
    /// Until each entry was read twice more: what the board holds now is on the screen.
    void UntilPolled();

    template <typename T>
    T* Find(const QString& name) {
        T* child = view.findChild<T*>(name);
        EXPECT_NE(child, nullptr) << name.toStdString();
        return child;
    }
    QLineEdit* Entry(int index);
    QString TextOf(int position);
    QPushButton* Button(const QString& name) { return Find<QPushButton>(name); }
    /// Clicks a tab of the strip with the mouse.
    void ClickTab(int index);
    void ClickArrow(int index, const char* name);

    ViewLoopRunner loops{BlockedByModalView};
    frmTargetBoard view;
};
