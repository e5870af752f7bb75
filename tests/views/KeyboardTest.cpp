#include "Controls.h"
#include "ViewsUnderTest.h"
#include <algorithm>
#include <QApplication>
#include <QRadioButton>
#include <QTest>

// Whoever has no mouse: every view is walked through by real keys.

namespace {
const QString hiddenDefault = QStringLiteral("cmdDefault");

bool IsHiddenDefault(const QWidget* control) {
    return control->objectName() == hiddenDefault;
}

QRect Place(const QWidget* control) {
    return {control->mapTo(control->window(), QPoint(0, 0)), control->size()};
}

// Reading goes from left to right in a line and from top to bottom in a column; what stands higher
// and further left comes first in any case. Columns are frames of their own: in one frame a line is
// read to its end before the next.
bool ReadsAfter(const QRect& earlier, const QRect& later, bool sameFrame) {
    const bool above = later.bottom() < earlier.top();
    const bool left = later.right() < earlier.left();
    const bool sameLine = !above && later.top() <= earlier.bottom();
    const bool sameColumn = !left && later.left() <= earlier.right();
    return !(above && (left || sameColumn || sameFrame)) && !(left && sameLine);
}

// Where another order serves the work better.
bool IsKnownOrder(const QWidget* earlier, const QWidget* later) {
    const std::pair<const char*, const char*> known[] = {
        {"txtTmg(0)", "cmdSetOffset"}, // Return in the offset goes on to its button
        {"txtNew", "drvNew"},          // a new set is named first; its place is right as a rule
        {"txtNew", "dirNew"},          {"filNew", "drvNew"}, {"filNew", "dirNew"},
        {"cboNew", "drvNew"},          {"cboNew", "dirNew"},
    };
    return std::any_of(std::begin(known), std::end(known), [&](const auto& pair) {
        return earlier->objectName() == QLatin1String(pair.first) &&
               later->objectName() == QLatin1String(pair.second);
    });
}

// The walk of a round that begins with this control.
QWidgetList From(const QWidgetList& walk, qsizetype first) {
    return walk.mid(first) + walk.first(first);
}

std::string FirstBreakOfOrder(const QWidgetList& walk) {
    for (qsizetype i = 0; i < walk.size(); ++i)
        for (qsizetype j = i + 1; j < walk.size(); ++j)
            if (!ReadsAfter(Place(walk[i]), Place(walk[j]),
                            walk[i]->parentWidget() == walk[j]->parentWidget()) &&
                !IsKnownOrder(walk[i], walk[j]))
                return Controls::NameOf(walk[i]) + " comes before " + Controls::NameOf(walk[j]);
    return {};
}

int DifferentPixels(const QImage& one, const QImage& other) {
    int different = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            different += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    return different;
}

class Keyboard : public EveryView {
protected:
    Keyboard() { QApplication::setCursorFlashTime(0); } // a caret stands still
};
} // namespace

TEST_P(Keyboard, ReachesWhatTheMouseCanWork) {
    LookAtView([](QWidget& view) {
        const QWidgetList wanted = Controls::ForMouse(view);
        const QWidgetList walk = Controls::Walk();
        QWidgetList reached = walk;
        for (QWidget* control : walk)
            if (qobject_cast<QRadioButton*>(control))
                reached += Controls::OptionsBeside(*control);
        for (const QWidget* control : wanted)
            EXPECT_TRUE(reached.contains(control)) << Controls::NameOf(control);
        for (const QWidget* control : walk)
            EXPECT_TRUE(control == &view || view.isAncestorOf(control))
                << "outside: " << Controls::NameOf(control);
    });
}

TEST_P(Keyboard, GoesInReadingOrder) {
    LookAtView([](QWidget&) {
        QWidgetList walk = Controls::Walk();
        walk.removeIf(&IsHiddenDefault);
        std::string best = walk.isEmpty() ? "" : FirstBreakOfOrder(walk);
        for (qsizetype first = 1; first < walk.size() && !best.empty(); ++first)
            best = FirstBreakOfOrder(From(walk, first));
        EXPECT_EQ(best, "");
    });
}

TEST_P(Keyboard, BacktabGoesTheSameWayBack) {
    LookAtView([](QWidget&) {
        const QWidgetList forward = Controls::Walk();
        if (forward.isEmpty())
            return;
        forward.first()->setFocus();
        QWidgetList backward = Controls::Walk(Qt::Key_Backtab);
        QWidgetList expected = forward;
        std::reverse(expected.begin() + 1, expected.end());
        expected.removeIf(&IsHiddenDefault); // Tab leaves it and does not come back
        backward.removeIf(&IsHiddenDefault);
        EXPECT_EQ(backward, expected);
    });
}

TEST_P(Keyboard, ShowsWhereTheFocusIs) {
    LookAtView([](QWidget& view) {
        constexpr int leastDifference = 24; // pixels: a caret and the frame of the smallest mark
        const QWidgetList walk = Controls::Walk();
        for (QWidget* control : walk) {
            if (IsHiddenDefault(control))
                continue;
            const QRect place = Place(control).adjusted(-3, -3, 3, 3);
            control->clearFocus();
            control->setFocus(Qt::TabFocusReason);
            QCoreApplication::processEvents();
            const QImage with = view.window()->grab(place).toImage();
            control->clearFocus();
            QCoreApplication::processEvents();
            const QImage without = view.window()->grab(place).toImage();
            EXPECT_GE(DifferentPixels(with, without), leastDifference) << Controls::NameOf(control);
        }
    });
}

// Also out of an entry: there the first Escape puts the old number back, the second leaves it.
TEST_P(Keyboard, EscapeClosesWhatStandsBeforeTheMainWindow) {
    const QStringList busy{QStringLiteral("frmDownloadProg"), QStringLiteral("frmWaitDisplay")};
    LookAtView([&busy](QWidget& view) {
        constexpr int presses = 3;
        if (!view.isWindow() || busy.contains(view.objectName()))
            return;
        for (int press = 0; press < presses && view.isVisible(); ++press) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &view,
                            Qt::Key_Escape);
            QCoreApplication::processEvents();
        }
        EXPECT_FALSE(view.isVisible());
    });
}

INSTANTIATE_TEST_SUITE_P(Views, Keyboard, testing::ValuesIn(ViewCases()),
                         [](const auto& view) { return std::string(view.param.name); });
