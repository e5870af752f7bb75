#pragma once

#include "pls/ConfigCoupling.h"
#include "pls/MachineMotion.h"
#include "pls/PLSBoards.h"
#include "pls/TimingEnablement.h"
#include "pls/TimingRows.h"
#include <optional>
#include <vector>

/// What the timing view is at, shared by its parts.
struct TimingState {
    bool running = false;            ///< the loop runs: from activation to closing
    bool gFirstPassOnline = false;   ///< the view has been switched to online
    bool offlineShown = false;       ///< the view has been switched to offline
    bool gPLSUploadComplete = false; ///< the channels were just uploaded: the next upload skips
                                     ///< its job once
    bool busy = false; ///< a handler talks to the board: none other may begin meanwhile
    qint16 boardIndex = PLSBoardIndex::R6500;
    MachineMotion motion;
    TimingEnablement enablement;
    R6500Coupling coupling;
    std::vector<TimingRow> rows; ///< of the grid, below its heading
    std::optional<int> position; ///< where the machine stands, while panel 2 tells it

    bool IsR6500() const { return boardIndex == PLSBoardIndex::R6500; }
};
