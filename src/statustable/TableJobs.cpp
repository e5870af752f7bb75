#include "statustable/TableJobs.h"

#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"

namespace {
constexpr int rowsBetweenYields = 256; // writing a row takes microseconds
} // namespace

TableRows::~TableRows() = default;
TableJobProgress::~TableJobProgress() = default;

void ReadAddresses(TableRows& table, TableJobProgress& progress) {
    const int highest = static_cast<int>(gTableAddresses.size()) - 1;
    progress.SetMax(highest);
    progress.SetValue(0);
    for (int i = 0; i < highest; ++i) {
        if (i % rowsBetweenYields == 0)
            progress.Yield();
        if (progress.TakeCancel())
            return;
        progress.SetValue(i + 1);
        table.SetText(i + firstDataRow, TableColumn::Address, gTableAddresses[i]);
    }
    table.SetTopRow(firstDataRow);
}

void ReadNames(TableRows& table, TableJobProgress& progress) {
    progress.SetMax(table.Rows() - firstDataRow);
    progress.SetValue(0);
    for (int row = firstDataRow; row < table.Rows(); ++row) {
        progress.Yield();
        if (progress.TakeCancel())
            return;
        progress.SetValue(row - firstDataRow + 1);
        const QString address = table.Text(row, TableColumn::Address);
        if (address.isEmpty())
            continue;
        try {
            table.SetText(row, TableColumn::Name, table.Nicname(address));
        } catch (const RunTimeError&) {
            // One bad row must not cost the others their names.
        }
    }
}
