#include "jobs/DataImage.h"

#include "link/TargetBoards.h"

namespace {
// The points of the running machine lie in here (on a K2012 at 160 to 223): not to be overwritten.
constexpr AddressRange livePoints{156, 511};
constexpr AddressRange nothing{0, -1};

constexpr DataImage k2012{{32, 8175}, {0, 8175}, livePoints, true};
constexpr DataImage r6500{{32, 7167}, {0, 7167}, livePoints, true};
constexpr DataImage standardImage{{70, 219}, {70, 219}, nothing, false};
} // namespace

const DataImage& DataImageOf(qint16 boardIndex) {
    switch (boardIndex) {
    case BoardIndex::K2012:
        return k2012;
    case BoardIndex::R6500PLC:
        return r6500;
    default:
        return standardImage;
    }
}
