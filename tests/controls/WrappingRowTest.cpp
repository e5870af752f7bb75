#include "controls/WrappingRow.h"

#include <gtest/gtest.h>
#include <memory>
#include <QLabel>
#include <QWidget>

namespace {
constexpr int controlWidth = 100; // pixels
constexpr int controlHeight = 20;

// Four controls in a row without margins, of which the last two belong together.
class WrappingRows : public testing::Test {
protected:
    WrappingRows() {
        auto made = std::make_unique<WrappingRow>();
        row = made.get();
        window.setLayout(made.release());
        row->setContentsMargins(0, 0, 0, 0);
        for (QLabel*& control : controls) {
            control = new QLabel;
            control->setFixedSize(controlWidth, controlHeight);
        }
        row->addWidget(controls[0]);
        row->addWidget(controls[1]);
        row->AddTogether({controls[2], controls[3]});
        row->activate();
    }
    void Narrow(int width) { row->setGeometry(QRect(0, 0, width, row->heightForWidth(width))); }
    int Line(int control) const { return controls[control]->y(); }

    QWidget window;
    WrappingRow* row = nullptr;
    QLabel* controls[4] = {};
};
} // namespace

TEST_F(WrappingRows, WhereThereIsRoomAllStandsInOneLine) {
    Narrow(row->sizeHint().width());
    EXPECT_EQ(row->heightForWidth(row->sizeHint().width()), controlHeight);
    for (int control = 1; control < 4; ++control) {
        EXPECT_EQ(Line(control), Line(0));
        EXPECT_GE(controls[control]->x(), controls[control - 1]->geometry().right() + 1);
    }
}

TEST_F(WrappingRows, OnePixelLessSendsTheLastGroupWholeIntoTheNextLine) {
    const int width = row->sizeHint().width() - 1;
    Narrow(width);
    EXPECT_EQ(Line(1), Line(0));
    EXPECT_GE(Line(2), Line(0) + controlHeight);
    EXPECT_EQ(Line(3), Line(2));
    EXPECT_EQ(controls[2]->x(), 0);
    EXPECT_EQ(row->heightForWidth(width), Line(2) + controlHeight);
}

TEST_F(WrappingRows, IsAsNarrowAsItsWidestGroupAndCutsNothingThere) {
    const int width = row->minimumSize().width();
    EXPECT_LT(width, 3 * controlWidth);
    Narrow(width);
    for (const QLabel* control : controls)
        EXPECT_LE(control->geometry().right(), width);
    EXPECT_EQ(Line(1), Line(0)) << "two single ones are as wide as the group";
    EXPECT_GT(Line(2), Line(1));
}

TEST_F(WrappingRows, AControlThatDiesLeavesTheRow) {
    delete controls[0];
    EXPECT_EQ(row->count(), 2);
    Narrow(row->sizeHint().width());
    EXPECT_EQ(controls[1]->x(), 0);
}
