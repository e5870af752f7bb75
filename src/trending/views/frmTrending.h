#pragma once

#include "trending/modGraph.h"
#include "trending/TrendAcquisition.h"
#include "trending/views/TrendingForm.h"
#include <QTimer>
#include <QWidget>

class Clock;
class Dialogs;
class JobRunner;
class NumericEntries;
class QPoint;
class ReportPrinter;
class RSComm;
class ViewLoopRunner;
class WaitJobs;

/// What the trend view needs of the main window that it is a child of.
class TrendingHost {
public:
    virtual ~TrendingHost();
    /// Shows or hides mnuFilePrintTrendData.
    virtual void ShowTrendCommands(bool shown) = 0;
    /// Opens mnuTrendingPopup at a place on the screen.
    virtual void PopUpTrendMenu(const QPoint& place) = 0;
};

/// The view in which an engineer watches one variable over time: a grid of samples, newest first,
/// and their graph. A child of the main window, which tells it when it becomes the active one.
class frmTrending final : public QWidget, private TrendDisplay, private ViewLoop {
    Q_OBJECT
public:
    /// What the view works with; all of it must outlive the view.
    struct Seams {
        RSComm& link;
        const Clock& clock;
        Dialogs& dialogs;
        ViewLoopRunner& loops;
        JobRunner& jobs;
        ReportPrinter& printer;
        TrendingHost& host;
    };

    explicit frmTrending(const Seams& seams, QWidget* parent = nullptr);
    ~frmTrending() override;

    /// Job 5 prints this view's samples.
    void RegisterJobs(WaitJobs& jobs);

    /// The view has become the main window's active child.
    void Activate();
    /// Another child is active now. Sampling by interval goes on, also behind other windows; it
    /// stops when the view is closed and goes on when it is activated again.
    void Deactivate();

    // Commands, by menu. They raise nothing: a failure is told in a box titled like the dialog of
    // the command, and the Cancel of that dialog changes nothing.

    /// Asks for a .tdt file and shows it: rows, counter, board and variable.
    void OpenTrendData();
    /// Asks for a file and writes variable, board and all rows into it.
    void SaveTendData();
    /// Shows frmTrendingPrint for the samples and returns when it is closed.
    void PrintTrendData();
    /// Asks for a file and writes the samples as comma separated values.
    void ExportCsv();
    /// Puts the graph on the clipboard as a picture.
    void CopyGraph();

    const TrendAcquisition& Acquisition() const { return acquisition_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // TrendDisplay.
    void SampleAdded(bool rowRemoved) override;
    void RowsChanged() override;
    void CounterChanged() override;
    void TimerChanged() override;
    // ViewLoop.
    Step TakeStep() override;

    void Connect();
    void ConnectGraphEntries();
    void Tick();
    void SelectOption();
    void EnterAddress();
    void LeaveAddress();
    void ShowAddresses();
    void TakeAddress(TrendVariable::Entered outcome);
    void GiveUpAddress();
    void DrawFrame();
    void GraphData();
    void GraphSamples();
    void ShowSamples();
    void Renumber();
    void SizeGrid();

    // frmTrendingFiles.cpp: files and printing.
    void Open(const QString& path);
    QString FileName() const;

    Seams seams_;
    modGraph graph_;
    TrendAcquisition acquisition_;
    TrendingForm form_;
    NumericEntries* entries_;
    QTimer tmrTrending_{this};
    QTimer showSamples_; ///< gathers samples that come fast
    int samplesToGraph_ = mostSamplesToGraph;
    bool viewRunning_ = false; ///< from activation until the view is closed
    bool graphRequested_ = false;
    bool graphDrawn_ = false; ///< the axes have been drawn once
    bool firstPass_ = false;  ///< the loop has not gone round since the view was activated
    QString lastPath_;        ///< of the file opened or saved last
};
