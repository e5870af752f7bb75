#pragma once

#include "statustable/NameTables.h"
#include "statustable/OfflineData.h"

/// What the parts of the status table view share.
struct TableState {
    bool active = false;        ///< from the first activation until the view unloads
    bool restart = false;       ///< the rows changed under a running pass: it must begin anew
    int editingRow = 0;         ///< row that is typed in, passed over by both passes; 0 for none
    qint16 tableBoard = 0;      ///< board the table belongs to, 0 for none
    bool offlineLoaded = false; ///< offlineData is loaded and is to be shown
    OfflineData offlineData;
    NameTables names;
};
