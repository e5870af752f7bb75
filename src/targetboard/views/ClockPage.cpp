#include "targetboard/views/ClockPage.h"

#include "targetboard/SetupEntries.h"
#include "targetboard/TargetBoardShown.h"
#include "targetboard/TargetBoardTexts.h"
#include "targetboard/views/PageParts.h"
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int timeEntry = firstClockEntry;
constexpr int dateEntry = firstClockEntry + 3;
constexpr int entriesPerHalf = 3;

QPushButton* Button(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}
} // namespace

ClockPage::ClockPage(NumericEntries& entries, QWidget* parent)
    : QFrame(parent), lblTargetBoardTime_(PlainLabel(QStringLiteral("lblTargetBoardTime"),
                                                     QStringLiteral("Target Board Time:"))),
      lblTargetBoardDate_(
          PlainLabel(QStringLiteral("lblTargetBoardDate"), QStringLiteral("Target Board Date:"))),
      lblCurrTime_(PlainLabel(QStringLiteral("lblCurrTime"))),
      lblCurrDate_(PlainLabel(QStringLiteral("lblCurrDate"))),
      cmdSetToCurrTime_(
          Button(QStringLiteral("cmdSetToCurrTime"), QStringLiteral("Set to Current &Time"))),
      cmdSetToCurrDate_(
          Button(QStringLiteral("cmdSetToCurrDate"), QStringLiteral("Set to Current &Date"))) {
    setObjectName(IndexedName("fraTargetBoard", 3));
    parts_.reserve(2 * entriesPerHalf);
    auto* clocks = new QGridLayout;
    AddHalf(*clocks,
            {0, lblTargetBoardTime_, lblCurrTime_, cmdSetToCurrTime_, timeEntry,
             QStringLiteral("Computer Time:")},
            entries);
    clocks->setRowMinimumHeight(2, cmdSetToCurrTime_->sizeHint().height() / 2);
    AddHalf(*clocks,
            {3, lblTargetBoardDate_, lblCurrDate_, cmdSetToCurrDate_, dateEntry,
             QStringLiteral("Computer Date:")},
            entries);
    clocks->setColumnStretch(7, 1);
    auto* form = new QVBoxLayout(this);
    form->addLayout(clocks);
    form->addSpacing(form->spacing() * 2);
    form->addWidget(MakeNotes());
    form->addStretch();
}

void ClockPage::AddHalf(QGridLayout& grid, const Half& half, NumericEntries& entries) {
    grid.addWidget(half.boardLabel, half.row, 0);
    for (int i = 0; i < entriesPerHalf; ++i) {
        const SetupControls& part = parts_.emplace_back(half.firstEntry + i, entries);
        grid.addWidget(part.Label(), half.row, 1 + 2 * i, Qt::AlignRight | Qt::AlignVCenter);
        grid.addWidget(part.Pair(), half.row, 2 + 2 * i);
    }
    grid.addWidget(new QLabel(half.computerCaption), half.row + 1, 0);
    grid.addWidget(half.computerLabel, half.row + 1, 1, 1, 4);
    grid.addWidget(half.button, half.row + 1, 5, 1, 2);
}

QWidget* ClockPage::MakeNotes() {
    auto* area = new QWidget;
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(PlainLabel(IndexedName("lblTimeDateNote", 0), QStringLiteral("Note:")), 0, 0,
                    Qt::AlignTop);
    grid->addWidget(
        WrappedLabel(IndexedName("lblTimeDateNote", 1), TargetBoardText::TimeDateNote()), 0, 1);
    grid->setColumnStretch(1, 1);
    return area;
}

void ClockPage::Show(const TargetBoardShown& shown) {
    for (SetupControls& part : parts_)
        part.Show(shown);
    const ControlTable& controls = shown.controls;
    lblTargetBoardTime_->setEnabled(controls.lblTargetBoardTime());
    lblTargetBoardDate_->setEnabled(controls.lblTargetBoardDate());
    cmdSetToCurrTime_->setEnabled(controls.cmdSetToCurrTime());
    cmdSetToCurrDate_->setEnabled(controls.cmdSetToCurrDate());
    lblCurrTime_->setText(shown.lblCurrTime);
    lblCurrDate_->setText(shown.lblCurrDate);
}
