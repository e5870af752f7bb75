#pragma once

#include <QWidget>

class QLineEdit;
class QToolButton;

/// The pair of arrows beside the text box of a numeric entry. It holds the range and steps the
/// number in the box; what a user types there it leaves alone, that is for the view to check.
/// The up and down keys in the box step as well.
class UpDown final : public QWidget {
    Q_OBJECT
public:
    /// Both the box and the arrows are the view's; `buddy` must live as long as the arrows.
    explicit UpDown(QLineEdit& buddy, QWidget* parent = nullptr);

    int Min() const { return min_; }
    int Max() const { return max_; }
    void SetMin(int min) { min_ = min; }
    void SetMax(int max) { max_ = max; }
    /// The number that was set or stepped to last.
    int Value() const { return value_; }
    /// Sets the number, held within the range, and fills the box with it.
    void SetValue(int value);
    /// Steps from the number that stands in the box, held within the range; from the last value if
    /// there is none.
    void Step(int difference);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QToolButton* AddArrow(Qt::ArrowType type, int difference, const QString& name);

    QLineEdit& buddy_;
    int min_ = 0;
    int max_ = 100;
    int value_ = 0;
};
