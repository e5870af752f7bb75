#include "targetboard/views/frmTargetBoard.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "controls/entry/NumericEntries.h"
#include "controls/ViewHelpers.h"
#include "targetboard/views/ClockPage.h"
#include "targetboard/views/FaultPage.h"
#include "targetboard/views/IdentPage.h"
#include "targetboard/views/NetworkPage.h"
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

frmTargetBoard::frmTargetBoard(RSComm& link, CommMode& mode, const Clock& clock, Dialogs& dialogs,
                               const ApplicationFolder& folder, ViewLoopRunner& loops,
                               QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), loops_(loops),
      model_(link, mode, clock, dialogs, folder) {
    setObjectName(QStringLiteral("frmTargetBoard"));
    setWindowTitle(QStringLiteral("Target Board Interface"));
    setModal(true);
    BuildForm(dialogs);
    ConnectControls();
    ConnectEntries();
}

frmTargetBoard::~frmTargetBoard() {
    loops_.Leave(*this);
}

void frmTargetBoard::BuildForm(Dialogs& dialogs) {
    cmdDefault_ = MakeDefaultButton(*this);
    entries_ = new NumericEntries(setupEntryCount, dialogs, *cmdDefault_, &SetupRefusalTitle, this);
    tabTargetBoard_ = new QTabBar;
    tabTargetBoard_->setObjectName(QStringLiteral("tabTargetBoard"));
    tabTargetBoard_->setFocusPolicy(Qt::StrongFocus); // a click leaves an entry, which is checked
    tabTargetBoard_->setUsesScrollButtons(false);     // all four are always in sight
    tabTargetBoard_->setElideMode(Qt::ElideNone);
    for (const char* caption : {"&Fault Codes / Status", "&Program Ident/Revision",
                                "&Set Network Address", "S&et Time && Date"})
        tabTargetBoard_->addTab(QLatin1String(caption));
    frames_ = new QStackedWidget;
    frames_->addWidget(faultPage_ = new FaultPage);
    frames_->addWidget(identPage_ = new IdentPage);
    frames_->addWidget(networkPage_ = new NetworkPage(*entries_));
    frames_->addWidget(clockPage_ = new ClockPage(*entries_));
    frames_->setFrameStyle(static_cast<int>(QFrame::StyledPanel) |
                           static_cast<int>(QFrame::Raised));
    cmdGoOnline_ = new QPushButton(QStringLiteral("&Go Online"));
    cmdGoOnline_->setObjectName(QStringLiteral("cmdGoOnline"));
    cmdOk_ = new QPushButton(QStringLiteral("&OK"));
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoOnline_);
    buttons->addStretch();
    buttons->addWidget(cmdOk_);
    auto* form = new QVBoxLayout(this);
    form->addWidget(tabTargetBoard_);
    form->addWidget(frames_, 1);
    form->addLayout(buttons);
}

void frmTargetBoard::ConnectControls() {
    connect(tabTargetBoard_, &QTabBar::currentChanged, this, &frmTargetBoard::tabTargetBoard_Click);
    connect(cmdOk_, &QPushButton::clicked, this, &frmTargetBoard::cmdOk_Click);
    const auto forward = [this](QPushButton* button, void (TargetBoardModel::*handler)()) {
        connect(button, &QPushButton::clicked, this, [this, handler] { Forward(handler); });
    };
    forward(cmdGoOnline_, &TargetBoardModel::cmdGoOnline_Click);
    forward(faultPage_->cmdResetFaults(), &TargetBoardModel::cmdResetFaults_Click);
    forward(clockPage_->cmdSetToCurrTime(), &TargetBoardModel::cmdSetToCurrTime_Click);
    forward(clockPage_->cmdSetToCurrDate(), &TargetBoardModel::cmdSetToCurrDate_Click);
}

void frmTargetBoard::ConnectEntries() {
    connect(entries_, &NumericEntries::Entered, this,
            [this](int index) { model_.SetupEntered(index); });
    connect(entries_, &NumericEntries::Abandoned, this,
            [this](int index) { model_.SetupAbandoned(index); });
    connect(entries_, &NumericEntries::Accepted, this,
            [this](int index, const QString& text) { model_.SetupAccepted(index, text); });
    connect(entries_, &NumericEntries::Stepped, this,
            [this](int index, const QString& text) { model_.SetupStepped(index, text); });
}

void frmTargetBoard::InitializeForm(const QString& HdnFile) {
    try {
        model_.Open(HdnFile);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("InitializeForm"), MsgStyle::Critical);
        return;
    }
    ShowModel();
    tabTargetBoard_->setCurrentIndex(0);
    tabTargetBoard_->setFocus();
    CenterForm(*this);
    model_.Start();
    loops_.Activate(*this);
    exec();
}

ViewLoop::Step frmTargetBoard::TakeStep() {
    const Step step = model_.TakeStep();
    ShowModel();
    return step;
}

void frmTargetBoard::ShowModel() {
    const TargetBoardShown& shown = model_.Shown();
    faultPage_->Show(shown);
    identPage_->Show(shown);
    networkPage_->Show(shown);
    clockPage_->Show(shown);
    cmdGoOnline_->setEnabled(shown.controls.cmdGoOnline());
}

// The strip has moved on already when an entry refuses to be left: it goes back to that page.
void frmTargetBoard::tabTargetBoard_Click(int index) {
    if (entries_->Refuses()) {
        const QSignalBlocker quiet(tabTargetBoard_);
        tabTargetBoard_->setCurrentIndex(frames_->currentIndex());
        return;
    }
    frames_->setCurrentIndex(index);
}

void frmTargetBoard::Forward(void (TargetBoardModel::*handler)()) {
    if (entries_->Refuses())
        return;
    (model_.*handler)();
    ShowModel();
    loops_.Wake();
}

void frmTargetBoard::cmdOk_Click() {
    if (!entries_->Refuses())
        accept();
}

// Every way out ends the loop before the window goes, so that nothing is sent on the way.
void frmTargetBoard::done(int result) {
    model_.Stop();
    loops_.Leave(*this);
    QDialog::done(result);
}

// Escape held down in an entry must not run on and close the view.
void frmTargetBoard::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->isAutoRepeat())
        return;
    QDialog::keyPressEvent(event);
}
