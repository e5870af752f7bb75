#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;
class RSComm;

/// Modal view that runs one program dump or upload and shows how far it is. It has no button: it
/// closes by itself when the transfer has ended, and a user cannot close it before.
class frmDownloadProg final : public QDialog {
    Q_OBJECT
public:
    /// Milliseconds between looks at the transfer.
    static constexpr int progressInterval = 250;

    /// `link` must outlive the view.
    explicit frmDownloadProg(RSComm& link, QWidget* parent = nullptr);

    /// What runs when the view is shown: TransferMode::Dump (0) or TransferMode::Upload (1). To
    /// be called before exec(); falls back to 0 when the transfer has ended.
    void SetTransferMode(qint16 Mode);
    qint16 Mode() const { return mode_; }

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildForm();
    void FormLoad();
    void RunTransfer();
    void Timer1_Timer();
    void SetText(const QString& text);

    RSComm& link_;
    qint16 mode_ = 0;
    bool loaded_ = false; // from the first showing to the end of the transfer
    QLabel* lblWaitDisplay_ = nullptr;
    QTimer timer1_{this};
};
