#include "bench/BenchLink.h"

#include "bench/BenchFiles.h"
#include <stdexcept>

namespace bench {

BenchLink::BenchLink(const QString& device, int baud) {
    WritePortSettings(directory.path(), device, baud);
    link.OpenRSComm(port);
    Check();
}

BenchLink::~BenchLink() {
    link.CloseRSComm();
}

void BenchLink::Check() const {
    if (!link.OnlineMode() || link.CommError())
        throw std::runtime_error("the link has failed");
}

} // namespace bench
