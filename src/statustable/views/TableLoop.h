#pragma once

#include "base/ViewLoop.h"
#include <optional>
#include <QHash>
#include <QString>

class CommMode;
class Grid;
class RSComm;
struct CellTexts;
struct TableState;

/// Keeps the visible rows up to date: online from the board, one row a step, offline from the data
/// file. Rows that scroll away end the pass; the next one begins at the new top row.
class TableLoop final : public ViewLoop {
public:
    /// All must outlive the loop.
    TableLoop(Grid& grid, RSComm& link, CommMode& mode, TableState& state);

    /// Reads one row from the board, or shows all visible rows from the data file. Rests while the
    /// view is not shown, another operation is on the line or there is nothing to do.
    /// The row of an address that no board has shows nothing.
    Step TakeStep() override;

private:
    // What the cells of an offline pass depend on.
    struct OfflineView {
        quint64 revision;
        int topRow;
        int editingRow;
        int height;

        bool operator==(const OfflineView&) const = default;
    };

    Step OnlinePass();
    Step OfflinePass();
    void BeginAnew();
    bool Skipped(int row) const;
    void ShowBoardValue(int row);
    std::optional<QString> ReadFromBoard(const QString& address);
    void ShowCells(int row, const CellTexts& cells, bool markChanges);
    OfflineView ViewNow() const;

    Grid& grid_;
    RSComm& link_;
    CommMode& mode_;
    TableState& state_;
    int row_ = 0;                        // next row of the online pass, 0 between passes
    bool read_ = false;                  // this pass has read a row
    QHash<int, QString> shownAddresses_; // address whose value each row shows
    std::optional<OfflineView> lastOffline_;
};
