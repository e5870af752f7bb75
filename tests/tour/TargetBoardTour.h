#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;

/// Adds the stops of the target board interface: its four pages online, with an address and a date
/// that reach the board, then offline with the line cut, and online again. The program is online;
/// the set LINE2, of a board with a clock, is selected on the way.
void AddTargetBoard(TourGuide& guide, frmMDIMain& window, BoardProcess& board);
