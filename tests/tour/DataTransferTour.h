#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;
class TourSetting;

/// Adds the stops of the data transfers: a range of the board into the set's data file, the same
/// range back with Cancel on the way, and a datafile to W100. The program is online, PUMP1 is
/// selected. The board keeps what was downloaded; the set has its data file from now on, with the
/// value n at address 519 + n up to B759.
void AddDataTransfers(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                      const TourSetting& setting);
