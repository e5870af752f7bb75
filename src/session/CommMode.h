#pragma once

class MSComm;
class RSComm;

/// Where the mode of the link is shown: panel 2 of the status bar and the checks of the two mode
/// commands.
class ModeDisplay {
public:
    virtual ~ModeDisplay();
    virtual void ShowMode(bool online) = 0;
};

/// The one place where the port is opened and closed for the user's mode.
class CommMode {
public:
    CommMode(RSComm& link, MSComm& port, ModeDisplay& display);

    /// Reconciles the port and the display with OnlineMode and CommError of the link: a
    /// communication error takes it offline and leaves the port as it is.
    void RefreshCommMode();
    /// The user's online command: clears a communication error and opens the port.
    void GoOnline();
    /// The user's offline command.
    void GoOffline();
    /// A double-click on the mode panel: online if it was not, else offline.
    void Toggle();

private:
    RSComm& link_;
    MSComm& port_;
    ModeDisplay& display_;
};
