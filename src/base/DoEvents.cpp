#include "base/DoEvents.h"

#include "base/ViewLoop.h"
#include <QCoreApplication>

void DoEvents() {
    const ViewLoopHold hold;
    QCoreApplication::processEvents();
}
