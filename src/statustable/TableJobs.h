#pragma once

#include <QString>

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

/// Progress bar and Cancel button of a job.
class TableJobProgress {
public:
    virtual ~TableJobProgress();
    /// The bar runs from 0 to `max`.
    virtual void SetMax(int max) = 0;
    virtual void SetValue(int value) = 0;
    /// Lets the user press Cancel.
    virtual void Yield() = 0;
    /// Whether Cancel was pressed; asking clears it.
    virtual bool TakeCancel() = 0;
};

/// Writes the address texts of gTableAddresses into column 1 and scrolls to the first row. Cancel
/// leaves the rows written so far.
void ReadAddresses(TableRows& table, TableJobProgress& progress);

/// Writes the name of each row's variable into column 0; a row whose name fails is passed over.
void ReadNames(TableRows& table, TableJobProgress& progress);
