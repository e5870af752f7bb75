#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;
class TourSetting;

/// Adds the stops of the status table: addresses of all kinds typed with names beside them, values
/// that move, values known in advance, two edits that reach the board, offline data. The program
/// is online with a K2012, the set PUMP1 has its data file. It is online again at the end.
void AddStatusTable(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                    const TourSetting& setting);
