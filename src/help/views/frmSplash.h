#pragma once

#include <QDialog>

class QLabel;
class QVBoxLayout;

/// Modal view at start-up: what the program is and who answers for it. The first key or click
/// closes it, wherever it falls. Show it with exec().
class frmSplash final : public QDialog {
    Q_OBJECT
public:
    explicit frmSplash(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void BuildForm();
    QVBoxLayout* Names();
    void FormLoad();

    QLabel* lblProductName_ = nullptr;
    QLabel* lblCompany_ = nullptr;
    QLabel* lblCompanyProduct_ = nullptr;
    QLabel* lblPlatform_ = nullptr;
    QLabel* lblVersion_ = nullptr;
    QLabel* lblCopyright_ = nullptr;
    QLabel* lblWarning_ = nullptr;
    QLabel* lblClickToContinue_ = nullptr;
};
