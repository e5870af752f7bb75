#pragma once

#include "controls/entry/NumericEntries.h"
#include "pls/views/ChannelDisplay.h"
#include "pls/views/ConfigEditor.h"
#include "pls/views/ConfigReset.h"
#include "pls/views/GridEvents.h"
#include "pls/views/OffsetEditor.h"
#include "pls/views/SetpointEditor.h"
#include "pls/views/TimingForm.h"
#include "pls/views/TimingLoop.h"
#include "pls/views/TimingScreen.h"
#include "pls/views/TimingState.h"
#include <optional>
#include <QWidget>

/// The view in which a limit switch board is watched and changed: speed and position of the
/// machine, the setpoints of all channels, and the editors of setpoints, offset and configuration.
/// A child of the main window, which tells it when it becomes the active one.
class frmTiming final : public QWidget {
    Q_OBJECT
public:
    explicit frmTiming(const TimingSeams& seams, QWidget* parent = nullptr);
    ~frmTiming() override;

    /// The view has become the active child. After it was closed it begins anew, with the board of
    /// the program set that is selected in the browser; its loop runs from now on.
    void Activate();
    /// Fits the view to the room it has; layout only.
    void Form_Resize();

    /// Shows what the channels hold again; online, the board's configuration is read first.
    void DisplayPLSChannels();
    /// Puts the selected cells of the grid on the clipboard as text.
    void PLSChannelsCopyClip() { gridEvents_.CopyClip(); }
    /// The view has been switched to online.
    bool gFirstPassOnline() const { return state_.gFirstPassOnline; }
    /// The caller has just uploaded the channels: the next upload skips its job once.
    void SetPLSUploadComplete() { state_.gPLSUploadComplete = true; }
    /// Index of the board selected in the view.
    qint16 SelectedBoard() const { return state_.boardIndex; }
    Grid& ChannelGrid() { return *form_.fgPLSChannels; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ConnectButtons();
    void ConnectConfig();
    void ConnectEntries();
    void Begin();
    void SelectBoardOf(qint16 boardIndex);
    bool MayBegin() const { return !entries_.Refuses() && !state_.busy; }
    void EntryEntered(int entry);
    void EntryAccepted(int entry, const QString& text);
    void EntryAbandoned(int entry);

    TimingSeams seams_;
    TimingState state_;
    TimingForm form_;
    NumericEntries entries_;
    TimingScreen screen_;
    ConfigEditor config_;
    ChannelDisplay channels_;
    SetpointEditor setpoints_;
    OffsetEditor offset_;
    ConfigReset reset_;
    GridEvents gridEvents_;
    TimingLoop loop_;
    QString entered_; // text of the entry that the user is in, as it was when he came
};
