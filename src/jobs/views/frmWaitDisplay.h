#pragma once

#include "base/Alarms.h"
#include "jobs/JobProgress.h"
#include <memory>
#include <optional>
#include <QDialog>

class Clock;
class QFrame;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpacerItem;
class QTimer;
class QVBoxLayout;
class WaitJobs;
struct WaitJobFace;

/// The modal busy view of one job: message, progress bar, the time that has passed and about how
/// much remains, Cancel. It is loaded for one job and dies after it.
///
/// What a job tells is put on the screen by an alarm, ten times a second, however fast the job goes
/// on: painting takes time from the line, and nobody reads faster. A click on Cancel is taken at
/// the job's next yield.
class frmWaitDisplay final : public QDialog, private JobProgress {
    Q_OBJECT
public:
    /// Milliseconds between repaints.
    static constexpr int repaintInterval = 100;

    /// Loads the view with the face of the job of this code. `backgroundUpdate` is the timer of
    /// the background update, which stands still while the job runs; `clock` times the job,
    /// `alarms` the repaints. All must outlive the view.
    frmWaitDisplay(qint16 jobCode, const WaitJobs& jobs, QTimer& backgroundUpdate,
                   const Clock& clock, Alarms& alarms, QWidget* parent = nullptr);
    ~frmWaitDisplay() override;

    /// Shows the view, runs the job in it and hides it again. What the job raises passes on.
    void RunJob();

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildForm();
    void FillFrame(QVBoxLayout& inside);
    QLabel* AddLabel(const QString& name);
    void Load(const WaitJobFace& face);
    void LowerMessage();
    void Activate();
    void Repaint();
    void RepaintFromNowOn();

    void ShowMessage(const QString& text) override { message_ = text; }
    void ShowSecondLine(const QString& text) override { secondLine_ = text; }
    void SetRange(qint32 min, qint32 max) override;
    void SetValue(qint32 value) override;
    bool Cancelled() const override { return cancelled_; }
    void ClearCancel() override { cancelled_ = false; }
    void Yield() override;

    const qint16 jobCode_;
    const WaitJobs& jobs_;
    QTimer& backgroundUpdate_;
    const Clock& clock_;

    QFrame* fraWaitDisplay_ = nullptr;
    QSpacerItem* aboveMessage_ = nullptr;
    QLabel* lblWaitDisplay_ = nullptr;
    QLabel* lblSetpointRecall_ = nullptr;
    QProgressBar* pbrWaitDisplay_ = nullptr;
    QLabel* lblJobTime_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
    std::unique_ptr<Alarm> nextRepaint_;

    bool cancelled_ = false;
    QString message_;
    QString secondLine_;
    qint32 min_ = 0;
    qint32 max_ = 0;
    qint32 value_ = 0;
    std::optional<qint32> firstValue_; // where the job began, for the estimate
    double startedAt_ = 0;             // seconds of the clock
};
