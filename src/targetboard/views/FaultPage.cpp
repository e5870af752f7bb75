#include "targetboard/views/FaultPage.h"

#include "targetboard/TargetBoardShown.h"
#include "targetboard/views/PageParts.h"
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int descriptionLines = 2;
constexpr int adviceLines = 4;

QString Purpose(int position) {
    switch (position) {
    case FaultPosition::CurrentFault:
        return QStringLiteral("Current fault");
    case FaultPosition::LastFault:
        return QStringLiteral("Last fault");
    case FaultPosition::CorrectiveAction:
        return QStringLiteral("Corrective action");
    case FaultPosition::CurrentCommError:
        return QStringLiteral("Current communication error");
    default:
        return QStringLiteral("Last communication error");
    }
}
} // namespace

FaultPage::FaultPage(QWidget* parent) : QFrame(parent) {
    setObjectName(IndexedName("fraTargetBoard", 0));
    auto* faults = new QGroupBox(QStringLiteral("Internal Fault Code:"));
    auto* faultForm = new QVBoxLayout(faults);
    AddPosition(*faultForm, FaultPosition::CurrentFault, descriptionLines);
    AddPosition(*faultForm, FaultPosition::LastFault, descriptionLines);
    AddPosition(*faultForm, FaultPosition::CoCpuSlot, 0);
    AddPosition(*faultForm, FaultPosition::CorrectiveAction, adviceLines);
    auto* commErrors = new QGroupBox(QStringLiteral("Communications Network Error Codes:"));
    auto* commForm = new QVBoxLayout(commErrors);
    AddPosition(*commForm, FaultPosition::CurrentCommError, descriptionLines);
    AddPosition(*commForm, FaultPosition::LastCommError, descriptionLines);
    cmdResetFaults_ = new QPushButton(QStringLiteral("&Reset Faults"));
    cmdResetFaults_->setObjectName(QStringLiteral("cmdResetFaults"));

    auto* form = new QVBoxLayout(this);
    form->addWidget(faults, 2);
    form->addWidget(commErrors, 1);
    form->addWidget(cmdResetFaults_, 0, Qt::AlignLeft);
}

void FaultPage::AddPosition(QBoxLayout& form, int position, int lines) {
    const auto index = static_cast<std::size_t>(position);
    lblTargetBoard_[index] = PlainLabel(IndexedName("lblTargetBoard", position));
    form.addWidget(lblTargetBoard_[index]);
    if (lines == 0)
        return;
    txtTargetBoard_[index] =
        ReadOnlyBox(IndexedName("txtTargetBoard", position), Purpose(position), lines);
    form.addWidget(txtTargetBoard_[index], lines);
}

void FaultPage::Show(const TargetBoardShown& shown) {
    for (std::size_t i = 0; i < lblTargetBoard_.size(); ++i) {
        lblTargetBoard_[i]->setText(shown.lblTargetBoard[i]);
        if (txtTargetBoard_[i])
            ShowText(*txtTargetBoard_[i], shown.txtTargetBoard[i]);
    }
    lblTargetBoard_[FaultPosition::CoCpuSlot]->setVisible(shown.controls.CoCpuSlotVisible());
    cmdResetFaults_->setEnabled(shown.controls.cmdResetFaults());
}
