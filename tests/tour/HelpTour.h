#pragma once

class TourGuide;
class frmMDIMain;

/// The first stops: the splash that waits for a key. They come before the start-up of the program.
void AddSplash(TourGuide& guide);
/// The about view with what the system is, and the guide on the page of the active view.
void AddHelp(TourGuide& guide, frmMDIMain& window);
