#pragma once

#include <QApplication>
#include <QLabel>
#include <QString>
#include <QWidget>

class Grid;
class QAbstractItemView;
class frmMDIMain;

/// What a user sees and does at the program: texts are read from the controls on the screen, keys
/// and clicks are sent to them.
namespace Hand {

/// The window that takes the input: the modal one on top, else none.
inline QWidget* Modal() {
    return QApplication::activeModalWidget();
}
/// Title of that window; empty without one.
QString ModalTitle();
/// Whether no modal window is up.
inline bool NothingModal() {
    return Modal() == nullptr;
}

/// A control in the modal window by its name; null if there is none.
template <typename Control>
Control* InModal(const QString& name) {
    return Modal() ? Modal()->findChild<Control*>(name) : nullptr;
}
/// Text of a label in the modal window; empty without it.
QString ModalLabel(const QString& name);

/// Text of a panel of the status bar.
QString Panel(const frmMDIMain& window, int panel);
/// What the busy view says; empty while none is up.
QString BusyText();

/// Clicks the middle of a control, or the mark of a check box or option.
void Click(QWidget* control);
/// Clicks a button of the modal window.
void ClickInModal(const QString& name);
/// Presses a button of the toolbar.
void PressButton(const frmMDIMain& window, const char* key);
/// Presses a key in the main window.
void PressKey(frmMDIMain& window, Qt::Key key);
/// Clicks the row of a list that shows `text`; false if there is none.
bool ClickRow(QAbstractItemView& list, const QString& text);
/// Puts `text` in place of what stands in a control of the modal window, and presses Return.
void TypeOver(const QString& name, const QString& text);
/// Types a path into the file dialog that is up and presses its Open or Save button.
void ChooseFile(const QString& path);

/// Clicks a cell of a grid.
void ClickCell(Grid& grid, int row, int col);
/// Types into the current cell and presses Return.
void TypeInto(Grid& grid, const QString& text);

} // namespace Hand
