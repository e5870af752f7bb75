#pragma once

#include <QString>

/// What a job's routine sees of the busy view. A routine is plain code: with another form of this
/// interface it runs without a window and in virtual time.
class JobProgress {
public:
    virtual ~JobProgress();

    /// The message: what is being done, and to which address or channel.
    virtual void ShowMessage(const QString& text) = 0;
    /// The second line, for jobs that work on setpoints within a channel.
    virtual void ShowSecondLine(const QString& text) = 0;
    /// Ends of the progress bar, in steps of the job.
    virtual void SetRange(qint32 min, qint32 max) = 0;
    /// How far the job has come; a value outside the range shows as the nearer end.
    virtual void SetValue(qint32 value) = 0;
    /// True from the user's Cancel on.
    virtual bool Cancelled() const = 0;
    /// The job has taken notice of the Cancel.
    virtual void ClearCancel() = 0;
    /// Lets pending events run, a click on Cancel among them. Never called inside an exchange.
    virtual void Yield() = 0;
};
