#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/port/SerialMSComm.h"
#include "bench/BenchDialogs.h"
#include "bench/CountingPort.h"
#include "link/RSComm.h"
#include <QTemporaryDir>

namespace bench {

/// The link of the program on a real port, with settings of its own, as the program has it.
class BenchLink {
public:
    /// Goes online to the device at `baud`, 9600 or 19200. Raises std::runtime_error when that
    /// fails.
    BenchLink(const QString& device, int baud);
    ~BenchLink();

    /// Raises std::runtime_error when the link has failed since.
    void Check() const;

    BenchDialogs dialogs;
    SystemClock clock;
    NoBusyDisplay busy;
    QTemporaryDir directory;
    ApplicationFolder folder{directory.path()};
    SerialMSComm serial{clock, folder};
    CountingPort port{serial};
    RSComm link{dialogs, clock, busy, folder};
};

} // namespace bench
