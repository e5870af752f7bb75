#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;

/// Adds the stops of the main job: go online, pick a program set, dump it into the board, see the
/// board's ident change, lose the line and come back.
void AddMainJob(TourGuide& guide, frmMDIMain& window, BoardProcess& board);
