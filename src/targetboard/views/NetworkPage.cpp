#include "targetboard/views/NetworkPage.h"

#include "targetboard/SetupEntries.h"
#include "targetboard/TargetBoardTexts.h"
#include "targetboard/views/PageParts.h"
#include <QGridLayout>
#include <QLabel>

NetworkPage::NetworkPage(NumericEntries& entries, QWidget* parent) : QFrame(parent) {
    setObjectName(IndexedName("fraTargetBoard", 2));
    auto* form = new QGridLayout(this);
    for (int i = 0; i < firstClockEntry; ++i) {
        const SetupControls& entry = addresses_.emplace_back(i, entries);
        form->addWidget(entry.Label(), i, 0);
        form->addWidget(entry.Pair(), i, 1);
    }
    form->setRowMinimumHeight(firstClockEntry, form->verticalSpacing() * 2);
    form->addWidget(
        WrappedLabel(QStringLiteral("lblNetworkAddComment"), TargetBoardText::NetworkAddComment()),
        firstClockEntry + 1, 0, 1, 2);
    form->setRowStretch(firstClockEntry + 2, 1);
    form->setColumnStretch(1, 1);
}

void NetworkPage::Show(const TargetBoardShown& shown) {
    for (SetupControls& address : addresses_)
        address.Show(shown);
}
