#include "pls/views/PanelRow.h"

#include <algorithm>
#include <QEvent>
#include <QLabel>

namespace {
constexpr int gap = 6; // pixels between two panels
} // namespace

void PanelRow::Add(QLabel& panel, int characters) {
    panel.setParent(this);
    panels_.push_back(&panel);
    characters_ = std::max(characters_, characters);
    panelHeight_ = std::max(panelHeight_, panel.sizeHint().height());
    setFixedHeight(panelHeight_);
    updateGeometry();
    Place();
}

QSize PanelRow::minimumSizeHint() const {
    const int count = static_cast<int>(panels_.size());
    const int width = fontMetrics().horizontalAdvance(u'0') * characters_;
    return {count * width + (count - 1) * gap, panelHeight_};
}

void PanelRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Place();
}

void PanelRow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    panelHeight_ = 0;
    for (QLabel* panel : panels_) {
        panel->setMinimumSize(0, 0);
        panel->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        panelHeight_ = std::max(panelHeight_, panel->sizeHint().height());
    }
    setFixedHeight(panelHeight_);
    Place();
}

// The last panel ends at the right edge, whatever a division leaves over.
void PanelRow::Place() {
    const int count = static_cast<int>(panels_.size());
    for (int i = 0; i < count; ++i) {
        const int left = (width() + gap) * i / count;
        const int right = (width() + gap) * (i + 1) / count - gap;
        QLabel& panel = *panels_[static_cast<std::size_t>(i)];
        panel.setFixedSize(std::max(right - left, 0), panelHeight_);
        panel.move(left, 0);
    }
}
