#pragma once

class frmMDIMain;
class TourGuide;
class TourSetting;

/// Adds the stops of the results and of the variable documentation: the compile errors of PUMP1,
/// which the tour writes, and the documented variables of that set.
void AddResults(TourGuide& guide, frmMDIMain& window, const TourSetting& setting);
