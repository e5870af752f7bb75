#include "jobs/views/frmDataXfr.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/ViewHelpers.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
constexpr int standardOption = 0;
constexpr int rangeOption = 1;
constexpr int roomBesideCaption = 80; // pixels of the title bar for its icon and buttons

QString Indexed(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// What a step key changes the number by; 0 for any other key.
int StepOf(const QKeyEvent& event) {
    return event.key() == Qt::Key_Up ? 1 : event.key() == Qt::Key_Down ? -1 : 0;
}
} // namespace

frmDataXfr::frmDataXfr(Dialogs& dialogs, const FileSystem& files, JobRunner& jobs, QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), jobs_(jobs), standard_(DataImageOf(gXferBoard).standard) {
    setObjectName(QStringLiteral("frmDataXfr"));
    setModal(true);
    BuildForm();
    const bool exists = files.FileExists(gHdnFile);
    setWindowTitle(TransferCaption(gXferMode, exists ? files.GetFileName(gHdnFile) : QString()));
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + roomBesideCaption);
    CenterForm(*this);
}

void frmDataXfr::BuildForm() {
    auto* form = new QVBoxLayout(this);
    AddOptions(*form);
    AddEntries(*form);
    AddButtons(*form);
}

// Neither option takes the focus from an entry by a click: who gives up the range need not first
// put the entries right.
void frmDataXfr::AddOptions(QVBoxLayout& form) {
    const std::array<QString, 2> captions{tr("Standard"), tr("Range")};
    for (int index = 0; index < 2; ++index) {
        auto* option = new QRadioButton(captions.at(index), this);
        option->setObjectName(Indexed("optRange", index));
        option->setFocusPolicy(Qt::TabFocus);
        connect(option, &QRadioButton::clicked, this, [this, index] { optRange_Click(index); });
        form.addWidget(option);
        optRange_.at(index) = option;
    }
}

void frmDataXfr::AddEntries(QVBoxLayout& form) {
    const std::array<QString, 2> captions{tr("&From:"), tr("&To:")};
    auto* grid = new QGridLayout;
    for (int index = 0; index < 2; ++index) {
        auto* label = new QLabel(captions.at(index), this);
        label->setObjectName(Indexed("lblRange", index));
        auto* entry = new QLineEdit(this);
        entry->setObjectName(Indexed("txtRange", index));
        entry->installEventFilter(this);
        label->setBuddy(entry);
        auto* arrows = new EntryUpDown(*entry, this);
        arrows->setObjectName(Indexed("updRange", index));
        for (QWidget* widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(entry),
                                static_cast<QWidget*>(arrows)})
            widget->setEnabled(false);
        grid->addWidget(label, index, 0);
        grid->addWidget(entry, index, 1);
        grid->addWidget(arrows, index, 2);
        lblRange_.at(index) = label;
        txtRange_.at(index) = entry;
        updRange_.at(index) = arrows;
    }
    form.addLayout(grid);
}

void frmDataXfr::AddButtons(QVBoxLayout& form) {
    cmdOk_ = new QPushButton(tr("OK"), this);
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdOk_->setAutoDefault(false);
    connect(cmdOk_, &QPushButton::clicked, this, &frmDataXfr::cmdOk_Click);
    cmdCancel_ = new QPushButton(tr("Cancel"), this);
    cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel_->setAutoDefault(false);
    cmdCancel_->setFocusPolicy(Qt::TabFocus); // a wrong entry is no reason to stay
    connect(cmdCancel_, &QPushButton::clicked, this, &frmDataXfr::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk_);
    buttons->addWidget(cmdCancel_);
    form.addLayout(buttons);
}

std::optional<int> frmDataXfr::EntryOf(const QObject* object) const {
    for (int index = 0; index < 2; ++index)
        if (txtRange_.at(index) == object)
            return index;
    return std::nullopt;
}

void frmDataXfr::optRange_Click(int index) {
    const bool range = index == rangeOption;
    for (int entry = 0; entry < 2; ++entry) {
        lblRange_.at(entry)->setEnabled(range);
        txtRange_.at(entry)->setEnabled(range);
        updRange_.at(entry)->setEnabled(range);
        if (!range)
            txtRange_.at(entry)->clear();
        updRange_.at(entry)->SetRange(standard_.first, standard_.last);
    }
    if (!range)
        return;
    updRange_.at(RangeEntry::From)->SetValue(standard_.first);
    updRange_.at(RangeEntry::To)->SetValue(standard_.last);
    txtRange_.at(RangeEntry::From)->setFocus();
}

bool frmDataXfr::eventFilter(QObject* watched, QEvent* event) {
    const std::optional<int> entry = EntryOf(watched);
    if (!entry)
        return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress && TakesKey(*entry, *static_cast<QKeyEvent*>(event)))
        return true;
    if (event->type() == QEvent::FocusIn)
        txtRange_GotFocus(*entry, static_cast<QFocusEvent*>(event)->reason());
    if (event->type() == QEvent::FocusOut && IsWithinProgram(*static_cast<QFocusEvent*>(event)))
        txtRange_LostFocus(*entry);
    return QDialog::eventFilter(watched, event);
}

// The click that brings the focus still has to place its cursor: the text is selected after that.
void frmDataXfr::txtRange_GotFocus(int index, Qt::FocusReason reason) {
    QLineEdit* entry = txtRange_.at(index);
    if (reason == Qt::MouseFocusReason)
        QMetaObject::invokeMethod(
            entry, [entry] { SelectAllText(*entry); }, Qt::QueuedConnection);
    else
        SelectAllText(*entry);
}

// Return moves on like Tab, the up and down keys step like the arrows.
bool frmDataXfr::TakesKey(int entry, const QKeyEvent& event) {
    const int step = StepOf(event);
    if (step != 0)
        updRange_.at(entry)->Step(step);
    else if (IsReturn(event))
        focusNextPrevChild(true);
    else
        return false;
    return true;
}

// No box is shown in the middle of a change of the focus: the entry is looked at right after it.
void frmDataXfr::txtRange_LostFocus(int index) {
    if (Choice() != RangeChoice::Range)
        return;
    leftEntry_ = index;
    QMetaObject::invokeMethod(this, &frmDataXfr::CheckLeftEntry, Qt::QueuedConnection);
}

void frmDataXfr::CheckLeftEntry() {
    if (isVisible() && leftEntry_ && Choice() == RangeChoice::Range)
        AcceptEntry(*leftEntry_);
}

bool frmDataXfr::AcceptEntry(int index) {
    leftEntry_.reset();
    const std::optional<RangeRefusal> refusal =
        CheckRange(index, txtRange_.at(RangeEntry::From)->text(),
                   txtRange_.at(RangeEntry::To)->text(), standard_);
    if (!refusal)
        return true;
    dialogs_.MsgBox(refusal->message, MsgStyle::Plain, QStringLiteral("Entry Error"));
    if (refusal->resetEntry)
        updRange_.at(*refusal->resetEntry)->SetValue(refusal->resetValue);
    txtRange_.at(index)->setFocus();
    leftEntry_.reset(); // the other entry may have lost the focus to this one: nobody left it
    return false;
}

RangeChoice frmDataXfr::Choice() const {
    if (optRange_.at(standardOption)->isChecked())
        return RangeChoice::Standard;
    return optRange_.at(rangeOption)->isChecked() ? RangeChoice::Range : RangeChoice::Neither;
}

// The entries are looked at here too: OK can be reached without leaving one.
void frmDataXfr::cmdOk_Click() {
    if (Choice() == RangeChoice::Range)
        for (const int index : {RangeEntry::From, RangeEntry::To})
            if (!AcceptEntry(index))
                return;
    const AddressRange chosen =
        ChosenRange(Choice(), standard_, txtRange_.at(RangeEntry::From)->text(),
                    txtRange_.at(RangeEntry::To)->text(), {gXferFrom, gXferTo});
    gXferFrom = chosen.first;
    gXferTo = chosen.last;
    hide();
    jobs_.RunWaitJob(WaitJob::TransferData);
    accept();
}

// Return presses the button that has the focus and no other.
void frmDataXfr::keyPressEvent(QKeyEvent* event) {
    if (!IsReturn(*event)) {
        QDialog::keyPressEvent(event);
        return;
    }
    for (QPushButton* button : {cmdOk_, cmdCancel_})
        if (button->hasFocus())
            button->click();
}

void frmDataXfr::reject() {
    QDialog::reject();
    DoEvents();
}
