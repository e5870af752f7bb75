#pragma once

#include "app/ChildActivation.h"
#include "results/views/frmViewResults.h"
#include <QObject>
#include <QPointer>

class frmMDIMain;
class frmStatusTable;
struct Platform;

/// The views of what the suite's tools leave beside a set, compiler errors, search results and the
/// names of variables, joined to the main window; and the search that the status table starts.
class ResultViews : public QObject, private ResultsHost {
    Q_OBJECT
public:
    /// All must outlive the object.
    ResultViews(const Platform& platform, frmMDIMain& window);

private:
    void RegisterViews();
    void RegisterCommands();
    frmViewResults& View();
    void ShowResults(qint16 mode);
    void ShowDocumentation(const QString& hdnFile);

    /// Path of the set whose variables the status table shows; empty when none.
    QString TableProgram() const;
    void RefreshFind();
    void FindInTableProgram();

    // ResultsHost
    void UnloadResults() override;

    const Platform& platform_;
    frmMDIMain& window_;
    QPointer<frmViewResults> view_;
    ChildActivation activation_;
};
