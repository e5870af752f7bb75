#pragma once

#include "controls/entry/EntryRules.h"
#include <QWidget>

class QLineEdit;
class QToolButton;

/// The pair of arrows beside the text box of a numeric entry. It holds the range and steps the
/// number in the box; what is typed there it leaves alone. The arrows never take the focus; held
/// down they repeat, until they are released or a modal window comes up before them.
class EntryUpDown final : public QWidget {
    Q_OBJECT
public:
    /// Both the box and the arrows are the view's; `buddy` must live as long as the arrows.
    explicit EntryUpDown(QLineEdit& buddy, QWidget* parent = nullptr);

    int Min() const { return range_.min; }
    int Max() const { return range_.max; }
    EntryRange Range() const { return range_; }
    void SetRange(int min, int max) { range_ = {min, max}; }
    /// The number that was set or stepped to last.
    int Value() const { return value_; }
    /// Sets the number, held within the range, and fills the box with it. Not a change by the user.
    void SetValue(int value);
    /// Steps the number in the box as a click on an arrow does.
    void Step(int difference);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;

Q_SIGNALS:
    /// The user stepped to another number, which stands in the box.
    void Changed(int value);

private:
    QToolButton* AddArrow(Qt::ArrowType type, int difference, const QString& name);

    QLineEdit& buddy_;
    EntryRange range_;
    int value_ = 0;
};
