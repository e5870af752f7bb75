#pragma once

#include "pls/PLSViewTexts.h"
#include <QDialog>

class Dialogs;
class Grid;
class PLSConfigFrame;
class QGroupBox;

/// The offline viewer: one .PCF or .CHL file of the program set in use as a page for reading. It
/// needs no board. The files are read by way of gPLS, which is given back before the view shows.
class frmPLSView final : public QDialog {
    Q_OBJECT
public:
    /// `dialogs` reports files that cannot be read; it must outlive the view.
    explicit frmPLSView(Dialogs& dialogs, QWidget* parent = nullptr);

    /// Shows the view modally for this file of the set gHdnFile until the user closes it. Raises as
    /// ProgramBoardIndex; gPLS is as before then too.
    void ShowMe(const QString& FileName);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildForm();
    QGroupBox* BuildGridFrame();
    void Load();
    void ShowConfiguration();
    void SetUpGrid();
    void LayoutView();
    QSize GridViewSize() const;
    void FillChannelGrid();
    void FitGrid();
    void ShareGridWidth();

    Dialogs& dialogs_;
    PLSViewFrame frame_ = PLSViewFrame::None;
    qint16 board_ = 0;
    PLSRecord shown_; // what the files hold

    std::array<PLSConfigFrame*, 2> configFrames_{};
    QGroupBox* gridFrame_ = nullptr;
    Grid* fgPLSChannels_ = nullptr;
};
