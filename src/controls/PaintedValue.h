#pragma once

#include <QString>

class QWidget;

/// A control that paints what it shows. Accessibility tools meet it as a chart, under the widget's
/// accessible name, with the words of InWords as its value and description.
class PaintedValue {
public:
    virtual ~PaintedValue();

    /// What is to be seen now, in one sentence.
    virtual QString InWords() const = 0;

protected:
    PaintedValue();
    /// Tells accessibility tools that what `widget` shows is another thing now.
    static void SayChanged(QWidget& widget);
};
