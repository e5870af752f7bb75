#include "controls/PaintedBusyDisplay.h"

#include <QApplication>
#include <QCursor>
#include <QWidget>

PaintedBusyDisplay::~PaintedBusyDisplay() {
    PaintedBusyDisplay::WaitEnded();
}

void PaintedBusyDisplay::StillWaiting(double seconds) {
    if (seconds < patience)
        return;
    if (!showsCursor_) {
        QApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        showsCursor_ = true;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            window->repaint();
    }
}

void PaintedBusyDisplay::WaitEnded() {
    if (!showsCursor_)
        return;
    QApplication::restoreOverrideCursor();
    showsCursor_ = false;
}
