#pragma once

#include <functional>
#include <QDate>
#include <QDialog>

class QHBoxLayout;
class QLabel;
class ValueLabel;
class QPushButton;
class QVBoxLayout;

/// What the about view shows and starts.
struct AboutContext {
    QDate revised;                                   ///< last change of the program; may be invalid
    std::function<void(QWidget& view)> startSysInfo; ///< what the System Info button does
};

/// Modal view with version, date and support lines. Show it with exec().
class frmAbout final : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(AboutContext context, QWidget* parent = nullptr);

private:
    void BuildForm();
    QVBoxLayout* Texts();
    QHBoxLayout* Buttons();
    void FormLoad();

    AboutContext context_;
    QLabel* lblTitle_ = nullptr;
    QLabel* lblVersion_ = nullptr;
    QLabel* lblRevisionDate_ = nullptr;
    ValueLabel* lblDescription_ = nullptr;
    ValueLabel* lblTechSupport_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdSysInfo_ = nullptr;
};
