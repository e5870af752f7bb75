#include "targetboard/ControlTable.h"

#include "link/TargetBoards.h"

ControlTable::ControlTable(qint16 boardIndex)
    : hasClock_(HasRealTimeClock(boardIndex)), coCpuSlotVisible_(boardIndex == BoardIndex::K2012) {
    entries_[1].visible = boardIndex == BoardIndex::T7110; // the one with two network addresses
    EnableClock(hasClock_);
    timeLabel_ = true;
}

void ControlTable::GoOnline() {
    cmdResetFaults_ = false;
    identInPLC_ = true;
    EnableVisibleEntries(true);
    EnableClock(hasClock_);
}

void ControlTable::EndFirstPass(bool commError) {
    if (!commError)
        cmdGoOnline_ = false;
}

void ControlTable::GoOffline() {
    cmdGoOnline_ = true;
    cmdResetFaults_ = false;
    identInPLC_ = false;
    EnableVisibleEntries(false);
    EnableClock(false);
}

bool ControlTable::ShowsValue(int index) const {
    const Entry& entry = Setup(index);
    return index < firstClockEntry ? entry.visible : entry.enabled;
}

void ControlTable::EnableVisibleEntries(bool enabled) {
    for (Entry& entry : entries_) {
        if (entry.visible)
            entry.enabled = enabled;
    }
}

void ControlTable::EnableClock(bool enabled) {
    timeLabel_ = enabled;
    dateLabel_ = enabled;
    setClock_ = enabled;
    for (std::size_t i = firstClockEntry; i < entries_.size(); ++i)
        entries_[i].enabled = enabled;
}
