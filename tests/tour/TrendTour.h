#pragma once

class BoardProcess;
class frmMDIMain;
class TourGuide;
class TourSetting;

/// Adds the stops of trending and printing: a live trend of a variable that moves, its samples
/// saved, opened again and graphed, and the reports of the trend and of the status table as PDF
/// files whose pages become pictures. The program is online with a K2012 whose demo machine runs;
/// the status table has rows.
void AddTrending(TourGuide& guide, frmMDIMain& window, BoardProcess& board,
                 const TourSetting& setting);
