#include "base/FlushToDisk.h"

#include <QFileDevice>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

bool FlushToDisk(QFileDevice& file) {
    if (!file.flush())
        return false;
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0;
#else
    return true;
#endif
}
