#include "controls/ViewHelpers.h"

#include "base/ViewLoop.h"
#include <algorithm>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QWidget>

namespace {
QRect WorkingArea(const QWidget& view) {
    const QWidget* window = view.parentWidget() ? view.parentWidget()->window() : nullptr;
    if (!window || !window->isVisible())
        window = QApplication::activeWindow();
    return window && window != &view ? window->frameGeometry() : view.screen()->availableGeometry();
}
} // namespace

void CenterForm(QWidget& view) {
    if (!view.testAttribute(Qt::WA_Resized))
        view.adjustSize();
    QRect place = view.frameGeometry();
    place.moveCenter(WorkingArea(view).center());
    const QRect screen = view.screen()->availableGeometry();
    const int x = std::clamp(place.x(), screen.left(),
                             std::max(screen.left(), screen.right() + 1 - place.width()));
    const int y = std::clamp(place.y(), screen.top(),
                             std::max(screen.top(), screen.bottom() + 1 - place.height()));
    view.move(x, y);
}

void SelectAllText(QLineEdit& entry) {
    entry.selectAll();
}

bool BlockedByModalView(const ViewLoop& loop) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && dynamic_cast<const ViewLoop*>(modal) != &loop;
}
