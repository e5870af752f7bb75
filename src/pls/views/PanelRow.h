#pragma once

#include <QWidget>
#include <vector>

class QLabel;

/// A row of labels of equal width whose texts change many times a second. The labels have a fixed
/// size, so that a new text does not lay the whole view out again: that would take the link's time.
class PanelRow final : public QWidget {
public:
    explicit PanelRow(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Adds a label on the right. It keeps room for so many digits, and the row becomes its parent.
    void Add(QLabel& panel, int characters);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Place();

    std::vector<QLabel*> panels_;
    int characters_ = 0;
    int panelHeight_ = 0; // pixels
};
