#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;
class TourSetting;

/// Adds the stops around program sets: the popups of a PLC and a PLS set, a copy, a new name, an
/// upload of the board's program into a new set, the port settings.
void AddProgramSets(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                    const TourSetting& setting);
