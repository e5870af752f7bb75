#include "statustable/TableJobs.h"

#include "base/RunTimeError.h"
#include "jobs/JobProgress.h"
#include "session/Globals.h"
#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>
#include <vector>

namespace {
class FakeRows final : public TableRows {
public:
    explicit FakeRows(int rows) : texts_(rows, std::vector<QString>(6)) {}

    int Rows() const override { return static_cast<int>(texts_.size()); }
    QString Text(int row, int column) const override { return texts_[row][column]; }
    void SetText(int row, int column, const QString& text) override { texts_[row][column] = text; }
    void SetTopRow(int row) override { topRow = row; }
    QString Nicname(const QString& address) const override {
        if (address == "B999")
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        return "name of " + address;
    }

    int topRow = 0;

private:
    std::vector<std::vector<QString>> texts_;
};

class Progress final : public JobProgress {
public:
    void ShowMessage(const QString&) override {}
    void ShowSecondLine(const QString&) override {}
    void SetRange(qint32, qint32 highest) override { max = highest; }
    void SetValue(qint32 reached) override { value = reached; }
    bool Cancelled() const override { return value == cancelAt; }
    void ClearCancel() override { cancelAt = -1; }
    void Yield() override { ++yields; }

    int max = -1;
    int value = -1;
    int yields = 0;
    int cancelAt = -1;
};

class TableJobs : public testing::Test {
protected:
    ~TableJobs() override { gTableAddresses.clear(); }
};
} // namespace

TEST_F(TableJobs, AddressesGoIntoColumn1) {
    gTableAddresses = QStringList{"B100", "", "W200", "", ""};
    FakeRows rows(6);
    Progress progress;
    ReadAddresses(rows, progress);
    EXPECT_EQ(rows.Text(2, 1), QString("B100"));
    EXPECT_EQ(rows.Text(3, 1), QString());
    EXPECT_EQ(rows.Text(4, 1), QString("W200"));
    EXPECT_EQ(rows.topRow, 2);
    EXPECT_EQ(progress.max, 4);
    EXPECT_EQ(progress.value, 4);
}

TEST_F(TableJobs, CancelInReadAddressesLeavesTheRowsWrittenSoFar) {
    gTableAddresses = QStringList{"B100", "B101", "B102", "", ""};
    FakeRows rows(6);
    Progress progress;
    progress.cancelAt = 2;
    ReadAddresses(rows, progress);
    EXPECT_EQ(rows.Text(3, 1), QString("B101"));
    EXPECT_EQ(rows.Text(4, 1), QString());
    EXPECT_EQ(progress.cancelAt, -1) << "the flag is cleared";
    EXPECT_EQ(rows.topRow, 0);
}

TEST_F(TableJobs, NamesGoBesideTheirAddresses) {
    FakeRows rows(6);
    rows.SetText(2, 1, "B100");
    rows.SetText(4, 1, "W200");
    rows.SetText(3, 0, "stays");
    Progress progress;
    ReadNames(rows, progress);
    EXPECT_EQ(rows.Text(2, 0), QString("name of B100"));
    EXPECT_EQ(rows.Text(3, 0), QString("stays"));
    EXPECT_EQ(rows.Text(4, 0), QString("name of W200"));
    EXPECT_EQ(progress.max, 4);
    EXPECT_EQ(progress.value, 4);
    EXPECT_EQ(progress.yields, 4);
}

TEST_F(TableJobs, AFailingRowDoesNotCostTheOthersTheirNames) {
    FakeRows rows(5);
    rows.SetText(2, 1, "B999");
    rows.SetText(3, 1, "B100");
    Progress progress;
    ReadNames(rows, progress);
    EXPECT_EQ(rows.Text(3, 0), QString("name of B100"));
}

TEST_F(TableJobs, CancelInReadNamesLeavesTheRowsNamedSoFar) {
    FakeRows rows(5);
    rows.SetText(2, 1, "B100");
    rows.SetText(3, 1, "B101");
    Progress progress;
    progress.cancelAt = 1;
    ReadNames(rows, progress);
    EXPECT_EQ(rows.Text(2, 0), QString("name of B100"));
    EXPECT_EQ(rows.Text(3, 0), QString());
}
