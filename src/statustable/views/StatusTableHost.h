#pragma once

#include <QPoint>
#include <QString>

struct PrinterChoice;

/// What the status table needs of the main window that it is a child of.
class StatusTableHost {
public:
    virtual ~StatusTableHost();
    /// Path that is selected in the browser, empty when none.
    virtual QString SelectedProgramPath() const = 0;
    /// Shows or hides mnuFilePrintStatusTable, mnuStatusTable, mnuEditCopy and mnuEditSep1.
    virtual void ShowTableCommands(bool shown) = 0;
    /// Hides mnuFilePrintStatusTable and mnuStatusTable, which only this view serves.
    virtual void HideTableMenus() = 0;
    /// Makes both entries of the status table menu visible and opens it at a place on the screen.
    virtual void PopUpTableMenu(const QPoint& place) = 0;
    /// The printer that the report of the next print job goes to.
    virtual void UsePrinter(const PrinterChoice& choice) = 0;
};
