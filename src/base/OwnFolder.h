#pragma once

#include "base/ApplicationFolder.h"

/// The application folder of the program that runs: that beside its executable, else the user's own
/// one, filled from the installed defaults. All programs of the installation find the same one, and
/// so the same settings. Needs the QCoreApplication. Raises nothing.
ApplicationFolder FindOwnFolder();
