#pragma once

class MSComm;
class RSComm;

/// Where the mode of the link is shown: panel 2 of the status bar and the checks of the two mode
/// commands.
class ModeDisplay {
public:
    virtual ~ModeDisplay();
    /// Shows that the link is online, or that it is not. Called with what is shown already, too.
    virtual void ShowMode(bool online) = 0;
};

/// The one place where the port is opened and closed for the user's mode. Nothing is raised: what
/// goes wrong with the port the link tells in boxes of its own.
class CommMode {
public:
    /// All must outlive the object.
    CommMode(RSComm& link, MSComm& port, ModeDisplay& display);

    /// Reconciles the port and the display with OnlineMode and CommError of the link: a
    /// communication error takes it offline and leaves the port as it is.
    void RefreshCommMode();
    /// The user's online command: clears a communication error and opens the port, an open one
    /// too, which asks the board for its attention again.
    void GoOnline();
    /// The user's offline command. A communication error stays, and with it the port as it is.
    void GoOffline();
    /// A double-click on the mode panel: online if it was not, else offline.
    void Toggle();

private:
    RSComm& link_;
    MSComm& port_;
    ModeDisplay& display_;
};
