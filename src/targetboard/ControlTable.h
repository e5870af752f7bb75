#pragma once

#include "targetboard/SetupEntries.h"
#include <array>
#include <QtGlobal>

/// What of the view is shown and enabled, by board and by the state of the link.
class ControlTable {
public:
    /// A set-up entry: its label, text box and up-down always go together.
    struct Entry {
        bool visible = true;
        bool enabled = true;
    };

    ControlTable() = default;
    /// As the view opens on a set of this board (TargetBoards.h), before anything is known of the
    /// line.
    explicit ControlTable(qint16 boardIndex);

    /// The first read after going online begins.
    void GoOnline();
    /// The first read has ended; `commError` tells whether the link failed meanwhile.
    void EndFirstPass(bool commError);
    /// The board cannot be reached.
    void GoOffline();
    void SetResetFaults(bool enabled) { cmdResetFaults_ = enabled; }

    bool cmdGoOnline() const { return cmdGoOnline_; }
    bool cmdResetFaults() const { return cmdResetFaults_; }
    /// The three labels of the ident in the board.
    bool lblRevIdentInPLC() const { return identInPLC_; }
    bool lblTargetBoardTime() const { return timeLabel_; }
    bool lblTargetBoardDate() const { return dateLabel_; }
    bool cmdSetToCurrTime() const { return setClock_; }
    bool cmdSetToCurrDate() const { return setClock_; }
    /// The label of the CO-CPU slot is shown, which one board has.
    bool CoCpuSlotVisible() const { return coCpuSlotVisible_; }
    const Entry& Setup(int index) const { return entries_[static_cast<std::size_t>(index)]; }
    /// Whether a value read for an entry is shown: a network address where it is on the screen,
    /// a part of the clock where the board has one.
    bool ShowsValue(int index) const;

private:
    void EnableVisibleEntries(bool enabled);
    void EnableClock(bool enabled);

    bool hasClock_ = false;
    bool coCpuSlotVisible_ = false;
    bool cmdGoOnline_ = false;
    bool cmdResetFaults_ = false;
    bool identInPLC_ = true;
    bool timeLabel_ = true;
    bool dateLabel_ = false;
    bool setClock_ = false;
    std::array<Entry, setupEntryCount> entries_;
};
