#pragma once

#include <QObject>
#include <QPointer>

class QMainWindow;
class QMdiArea;
class QToolBar;
class QWidget;

/// Keys of the main window for people who work without a mouse:
/// F10 opens the menu bar;
/// F6 goes to the toolbar and back, there the arrow keys go on and Space or Return presses;
/// Ctrl+F6 and Ctrl+Shift+F6 go to the next and the last view inside the window, the browser among
/// them;
/// Alt+- opens the window menu of the active view, to move, size and close it;
/// F8 goes to the dividers between the lists.
class WindowKeys : public QObject {
    Q_OBJECT
public:
    /// All must outlive the object; `window` owns it.
    WindowKeys(QMainWindow& window, QMdiArea& area, QToolBar& toolbar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddKeys();
    void OpenMenuBar();
    void GoToToolbar();
    void LeaveToolbar();
    void OpenWindowMenu();
    bool KeyInToolbar(QWidget& button, int key);

    QMainWindow& window_;
    QMdiArea& area_;
    QToolBar& toolbar_;
    QPointer<QWidget> before_; ///< had the focus before the toolbar
};
