#include "controls/grid/GridModel.h"

#include "support/PrintText.h"
#include "support/VirtualAlarms.h"
#include <gtest/gtest.h>
#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {
class GridModelRows : public testing::Test {
protected:
    GridModelRows() {
        model.SetCols(3);
        model.SetRows(6);
        for (int row = 0; row < 6; ++row)
            model.SetText(row, 1, QString("row %1").arg(row));
        model.Flush();
    }

    QStringList Column() const {
        QStringList texts;
        for (int row = 2; row < model.Rows(); ++row)
            texts += model.Text(row, 1);
        return texts;
    }

    VirtualClock clock;
    VirtualAlarms alarms{clock};
    GridModel model{2, nullptr, alarms};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};
} // namespace

TEST_F(GridModelRows, FixedRowsAreTheHeads) {
    EXPECT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(),
              QString("row 0\nrow 1"));
    EXPECT_EQ(model.data(model.index(0, 1), Qt::DisplayRole).toString(), QString("row 2"));
}

TEST_F(GridModelRows, RowsComeAndGo) {
    model.InsertRows(3, 1, {"", "new"});
    EXPECT_EQ(Column(), (QStringList{"row 2", "new", "row 3", "row 4", "row 5"}));
    model.RemoveRows(2, 1);
    EXPECT_EQ(Column(), (QStringList{"new", "row 3", "row 4", "row 5"}));
    model.InsertRows(99, 1, {"", "last"});
    EXPECT_EQ(Column().last(), QString("last"));
    model.SetRows(3);
    EXPECT_EQ(Column(), QStringList{"new"});
    model.SetRows(0);
    EXPECT_EQ(model.Rows(), 2);
}

TEST_F(GridModelRows, SeveralRowsComeAndGoAtOnce) {
    model.InsertRows(4, 3, {"", "new"});
    EXPECT_EQ(Column(), (QStringList{"row 2", "row 3", "new", "new", "new", "row 4", "row 5"}));
    model.RemoveRows(4, 3);
    EXPECT_EQ(Column(), (QStringList{"row 2", "row 3", "row 4", "row 5"}));
    model.RemoveRows(4, 99);
    EXPECT_EQ(Column(), (QStringList{"row 2", "row 3"}));
    model.InsertRows(4, 0, {});
    EXPECT_EQ(model.Rows(), 4);
}

TEST_F(GridModelRows, FixedRowsStay) {
    model.RemoveRows(1, 1);
    model.RemoveRows(-1, 1);
    model.RemoveRows(6, 1);
    EXPECT_EQ(model.Rows(), 6);
    model.InsertRows(0, 1, {"", "top"});
    EXPECT_EQ(model.Text(2, 1), QString("top"));
}

TEST_F(GridModelRows, OutsideTheGridIsNothing) {
    model.SetText(99, 1, "x");
    model.SetText(2, 3, "x");
    model.SetText(-1, 0, "x");
    EXPECT_EQ(model.Text(99, 1), QString());
    EXPECT_EQ(model.Text(2, -1), QString());
    EXPECT_FALSE(model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

TEST_F(GridModelRows, ClearEmptiesHeadsAndRows) {
    model.Clear();
    EXPECT_EQ(model.Rows(), 6);
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(model.Text(row, 1), QString());
}

TEST_F(GridModelRows, RevisionTellsWhetherAnythingChanged) {
    const quint64 before = model.Revision();
    model.SetText(2, 1, "row 2");
    EXPECT_EQ(model.Revision(), before);
    model.SetText(2, 1, "other");
    EXPECT_NE(model.Revision(), before);
}

TEST_F(GridModelRows, RepaintsAreGatheredToAtMost25ASecond) {
    QSignalSpy repaints(&model, &GridModel::dataChanged);
    for (int millisecond = 0; millisecond < 1000; ++millisecond) {
        model.SetText(2, 1, QString::number(millisecond));
        alarms.Pass(1);
    }
    EXPECT_EQ(repaints.size(), 25);
}

TEST_F(GridModelRows, AChangeAfterALongPauseIsShownInTheNextTurn) {
    alarms.Pass(10 * GridModel::repaintInterval);
    QSignalSpy repaints(&model, &GridModel::dataChanged);
    model.SetText(2, 1, "late");
    alarms.Pass(1);
    EXPECT_EQ(repaints.size(), 1);
}

TEST_F(GridModelRows, FlushShowsAtOnce) {
    QSignalSpy repaints(&model, &GridModel::dataChanged);
    model.SetText(2, 1, "typed");
    model.SetText(3, 1, "typed");
    EXPECT_EQ(repaints.size(), 0);
    model.Flush();
    EXPECT_EQ(repaints.size(), 2);
}

TEST_F(GridModelRows, ManyChangesAreShownAsOne) {
    model.SetRows(1000);
    model.Flush();
    QSignalSpy repaints(&model, &GridModel::dataChanged);
    for (int row = 2; row < 1000; ++row)
        model.SetText(row, 0, "x");
    model.Flush();
    EXPECT_EQ(repaints.size(), 1);
}

TEST_F(GridModelRows, AMarkGoesOutAgain) {
    model.MarkChanged(3, 1);
    const QModelIndex cell = model.index(1, 1);
    EXPECT_TRUE(cell.data(GridModel::ChangedRole).toBool());
    EXPECT_FALSE(model.index(0, 1).data(GridModel::ChangedRole).toBool());
    QSignalSpy repaints(&model, &GridModel::dataChanged);
    alarms.Pass(599); // of 0.6 seconds
    EXPECT_TRUE(cell.data(GridModel::ChangedRole).toBool());
    EXPECT_EQ(repaints.size(), 1);
    alarms.Pass(2);
    EXPECT_FALSE(cell.data(GridModel::ChangedRole).toBool());
    EXPECT_EQ(repaints.size(), 2) << "it goes out on the screen too";
}

TEST_F(GridModelRows, MarksGoOutEachInItsOwnTime) {
    const QModelIndex first = model.index(1, 1);
    const QModelIndex second = model.index(2, 1);
    model.MarkChanged(3, 1);
    alarms.Pass(100);
    model.MarkChanged(4, 1);
    alarms.Pass(GridModel::markTime - 100);
    EXPECT_FALSE(first.data(GridModel::ChangedRole).toBool());
    EXPECT_TRUE(second.data(GridModel::ChangedRole).toBool());
    model.MarkChanged(4, 1); // changed once more: its time begins again
    alarms.Pass(GridModel::markTime - 1);
    EXPECT_TRUE(second.data(GridModel::ChangedRole).toBool());
    alarms.Pass(1);
    EXPECT_FALSE(second.data(GridModel::ChangedRole).toBool());
}

TEST_F(GridModelRows, MarksEndWhenRowsComeOrGo) {
    model.MarkChanged(3, 1);
    model.InsertRows(2, 1, {});
    for (int row = 0; row < model.rowCount(); ++row)
        EXPECT_FALSE(model.index(row, 1).data(GridModel::ChangedRole).toBool());
}
