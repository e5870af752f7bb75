#include "targetboard/views/SetupControls.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "targetboard/TargetBoardShown.h"
#include "targetboard/views/PageParts.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
constexpr int boxCharacters = 5; // room for two digits and what is typed by mistake
}

SetupControls::SetupControls(int index, NumericEntries& entries)
    : index_(index), entries_(entries), pair_(new QWidget), box_(new QLineEdit),
      upDown_(new EntryUpDown(*box_)) {
    const SetupEntry& entry = setupEntries[static_cast<std::size_t>(index)];
    const QString caption = QString::fromUtf16(entry.label);
    label_ = PlainLabel(IndexedName("lblSetupDesc", index), caption);
    box_->setObjectName(IndexedName("txtSetup", index));
    box_->setAccessibleName(caption);
    box_->setFixedWidth(box_->fontMetrics().horizontalAdvance(u'0') * boxCharacters + 12);
    upDown_->setObjectName(IndexedName("updSetup", index));
    upDown_->SetRange(entry.min, entry.max);
    auto* layout = new QHBoxLayout(pair_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(box_);
    layout->addWidget(upDown_);
    layout->addStretch();
    entries.Add(index, *box_, *upDown_);
}

void SetupControls::Show(const TargetBoardShown& shown) {
    const auto index = static_cast<std::size_t>(index_);
    const ControlTable::Entry& entry = shown.controls.Setup(index_);
    label_->setVisible(entry.visible);
    label_->setEnabled(entry.enabled);
    box_->setVisible(entry.visible);
    upDown_->setVisible(entry.visible);
    if (box_->isEnabled() != entry.enabled)
        entries_.SetEnabled(index_, entry.enabled);
    if (!shown.editing[index] && box_->text() != shown.txtSetup[index])
        box_->setText(shown.txtSetup[index]);
}
