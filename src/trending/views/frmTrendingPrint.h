#pragma once

#include <QDialog>

class Dialogs;
class JobRunner;
class QCheckBox;
class QLabel;
class ReportPrinter;
class TrendSamples;

/// Asks what of a trend is printed and prints it: the report of its samples, its graph or both.
class frmTrendingPrint final : public QDialog {
    Q_OBJECT
public:
    /// All must outlive the dialog. The report is printed by job 5, whoever registered it.
    frmTrendingPrint(Dialogs& dialogs, ReportPrinter& printer, JobRunner& jobs,
                     QWidget* parent = nullptr);

    /// What is printed; `samplesToGraph` as for ValuesToGraph. Both before the dialog is shown.
    void InitialilizePrint(const TrendSamples& samples, int samplesToGraph);

private:
    void ShowPrinterName();
    void ClickOk();
    /// Asks for the printer; false if the user gave it up.
    bool ChoosePrinter();

    Dialogs& dialogs_;
    ReportPrinter& printer_;
    JobRunner& jobs_;
    const TrendSamples* samples_ = nullptr;
    int samplesToGraph_ = 0;
    QCheckBox* chkGraph_;
    QCheckBox* chkTrendData_;
    QLabel* lblPrinter_;
};
