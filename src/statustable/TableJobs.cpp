#include "statustable/TableJobs.h"

#include "base/RunTimeError.h"
#include "jobs/JobProgress.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"

namespace {
constexpr int rowsBetweenYields = 256; // writing a row takes microseconds

bool TakeCancel(JobProgress& progress) {
    const bool cancelled = progress.Cancelled();
    if (cancelled)
        progress.ClearCancel();
    return cancelled;
}
} // namespace

TableRows::~TableRows() = default;

void ReadAddresses(TableRows& table, JobProgress& progress) {
    const int highest = static_cast<int>(gTableAddresses.size()) - 1;
    progress.SetRange(0, highest);
    progress.SetValue(0);
    for (int i = 0; i < highest; ++i) {
        if (i % rowsBetweenYields == 0)
            progress.Yield();
        if (TakeCancel(progress))
            return;
        progress.SetValue(i + 1);
        table.SetText(i + firstDataRow, TableColumn::Address, gTableAddresses[i]);
    }
    table.SetTopRow(firstDataRow);
}

void ReadNames(TableRows& table, JobProgress& progress) {
    progress.SetRange(0, table.Rows() - firstDataRow);
    progress.SetValue(0);
    for (int row = firstDataRow; row < table.Rows(); ++row) {
        progress.Yield();
        if (TakeCancel(progress))
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
