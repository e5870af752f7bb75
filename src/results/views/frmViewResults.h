#pragma once

#include <QString>
#include <QWidget>

class Clock;
class Dialogs;
class QKeyEvent;
class QPlainTextEdit;
class QPushButton;
class ReportPrinter;

/// What the results view needs of the main window that it is a child of.
class ResultsHost {
public:
    virtual ~ResultsHost();
    /// Takes the view out of the main window, as a close by the user does.
    virtual void UnloadResults() = 0;
};

/// The view of the texts that the suite's tools leave beside a program set: compiler errors, and
/// the results of searches, which pile up from one search to the next.
class frmViewResults final : public QWidget {
    Q_OBJECT
public:
    /// What the view works with; all of it must outlive the view.
    struct Seams {
        Dialogs& dialogs;
        Clock& clock;
        ReportPrinter& printer;
        ResultsHost& host;
    };

    explicit frmViewResults(const Seams& seams, QWidget* parent = nullptr);

    /// Fills the text box for gHdnFile in a mode (ResultsMode); an error is shown, and leaves the
    /// box empty. Yields, for a second where the file is still empty. The caller shows the view.
    void DisplayResults(qint16 Mode);
    /// Asks for a printer and prints what the text box holds. A failure is shown.
    void PrintResults();

    /// The view has become the main window's active child.
    void Activate();

    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildForm();
    void ShowText(qint16 mode, const QString& base, const QString& text);
    void RememberSelection();
    bool TakeKey(const QKeyEvent& event);
    void cmdClear_Click();

    Seams seams_;
    QPlainTextEdit* txtViewErrors_;
    QPushButton* cmdOk_;
    QPushButton* cmdClear_;
    QPushButton* cmdDefault_;
    QString selectedText_; ///< the text selected last, lines parted by CR LF
};
