#pragma once

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

/// Shows whoever works from the keyboard where the focus is. Styles mark it in entries and on
/// buttons, but neither on lists, tables and texts nor on the default button, which looks the same
/// with the focus and without it: these get a frame in the highlight colour. No frame is drawn as
/// long as only the mouse is used.
class FocusMark : public QObject {
    Q_OBJECT
public:
    /// Follows the focus in all windows of the program for as long as the object lives.
    explicit FocusMark(QObject* parent = nullptr);
    ~FocusMark() override;

private:
    void Follow(QWidget* focus);

    QPointer<QFocusFrame> frame_; // goes with the window that it is drawn in
};
