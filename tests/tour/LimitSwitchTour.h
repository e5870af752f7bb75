#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;

/// Adds the stops of limit switch boards: the board on the line becomes an R6500(PLS), whose
/// turning and standing machine is watched; a setpoint is added and adjusted, a pulse train
/// programmed, a change of the configuration sent; both files of a set are looked at offline. The
/// set CAM1 is selected on the way. The line holds the limit switch board at the end, offline.
void AddLimitSwitch(TourGuide& guide, frmMDIMain& window, BoardProcess& board);
