#include "session/CommMode.h"

#include "link/RSComm.h"

ModeDisplay::~ModeDisplay() = default;

CommMode::CommMode(RSComm& link, MSComm& port, ModeDisplay& display)
    : link_(link), port_(port), display_(display) {}

void CommMode::RefreshCommMode() {
    if (link_.CommError())
        link_.SetOnlineMode(false);
    if (!link_.CommError()) {
        if (link_.OnlineMode())
            link_.OpenRSComm(port_);
        else
            link_.CloseRSComm();
    }
    display_.ShowMode(link_.OnlineMode()); // asked again: the port may not have opened
}

void CommMode::GoOnline() {
    link_.SetOnlineMode(true);
    link_.SetCommError(false);
    RefreshCommMode();
}

void CommMode::GoOffline() {
    link_.SetOnlineMode(false);
    RefreshCommMode();
}

void CommMode::Toggle() {
    if (link_.OnlineMode())
        GoOffline();
    else
        GoOnline();
}
