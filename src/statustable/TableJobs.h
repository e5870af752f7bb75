#pragma once

#include <QString>

class JobProgress;

/// The rows of the status table as its two jobs see them.
class TableRows {
public:
    virtual ~TableRows();
    /// Number of rows, the two head rows and the append row included.
    virtual int Rows() const = 0;
    /// Text of a cell, by its row from 0 and its column (TableColumn).
    virtual QString Text(int row, int column) const = 0;
    /// Shows a text in a cell.
    virtual void SetText(int row, int column, const QString& text) = 0;
    /// Scrolls so that this row is the first one below the heads.
    virtual void SetTopRow(int row) = 0;
    /// The name of a variable, of the kind that is shown. May raise a RunTimeError.
    virtual QString Nicname(const QString& address) const = 0;
};

/// Writes the address texts of gTableAddresses into column 1, all but the last, which stands behind
/// the rows, and scrolls to the first row. Cancel leaves the rows written so far. Raises nothing of
/// its own.
void ReadAddresses(TableRows& table, JobProgress& progress);

/// Writes the name of each row's variable into column 0; a row without an address or whose name
/// fails is passed over. Cancel leaves the rows named so far.
void ReadNames(TableRows& table, JobProgress& progress);
