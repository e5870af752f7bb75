#pragma once

#include <QString>

class JobProgress;

/// The rows of the status table as its two jobs see them.
class TableRows {
public:
    virtual ~TableRows();
    /// Number of rows, the two head rows and the append row included.
    virtual int Rows() const = 0;
    virtual QString Text(int row, int column) const = 0;
    virtual void SetText(int row, int column, const QString& text) = 0;
    /// Scrolls so that this row is the first one below the heads.
    virtual void SetTopRow(int row) = 0;
    /// The name of a variable, of the kind that is shown. May raise a RunTimeError.
    virtual QString Nicname(const QString& address) const = 0;
};

/// Writes the address texts of gTableAddresses into column 1 and scrolls to the first row. Cancel
/// leaves the rows written so far.
void ReadAddresses(TableRows& table, JobProgress& progress);

/// Writes the name of each row's variable into column 0; a row whose name fails is passed over.
void ReadNames(TableRows& table, JobProgress& progress);
