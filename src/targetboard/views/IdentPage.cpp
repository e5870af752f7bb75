#include "targetboard/views/IdentPage.h"

#include "controls/ValueLabel.h"
#include "targetboard/TargetBoardShown.h"
#include "targetboard/views/PageParts.h"
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr std::array<const char*, IdentLabel::OnDiskCount> captions{
    "Name:", "Revision:", "Checksum:", "Target Board:", "Rev Date:"};

// Names in a board may be filled up with bytes that are no characters.
QString Printable(QString text) {
    for (QChar& character : text)
        if (!character.isPrint())
            character = u' ';
    return text;
}
} // namespace

IdentPage::IdentPage(QWidget* parent) : QFrame(parent) {
    setObjectName(IndexedName("fraTargetBoard", 1));
    auto* form = new QVBoxLayout(this);
    form->addWidget(
        IdentFrame(QStringLiteral("In Target Board:"), "lblRevIdentInPLC", lblRevIdentInPLC_));
    form->addWidget(
        IdentFrame(QStringLiteral("On Disk:"), "lblRevIdentOnDisk", lblRevIdentOnDisk_));
    form->addStretch();
}

template <std::size_t count>
QGroupBox* IdentPage::IdentFrame(const QString& title, const char* name,
                                 std::array<ValueLabel*, count>& labels) {
    auto* frame = new QGroupBox(title);
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    const QString longest = QLatin1String(captions[IdentLabel::TargetBoard]);
    grid->setColumnMinimumWidth(0, frame->fontMetrics().horizontalAdvance(longest)); // as the other
    for (std::size_t i = 0; i < count; ++i) {
        const int row = static_cast<int>(i);
        grid->addWidget(new QLabel(QLatin1String(captions[i])), row, 0);
        labels[i] = new ValueLabel(title + u' ' + QLatin1String(captions[i]));
        labels[i]->setObjectName(IndexedName(name, row));
        grid->addWidget(labels[i], row, 1);
    }
    return frame;
}

void IdentPage::Show(const TargetBoardShown& shown) {
    for (std::size_t i = 0; i < lblRevIdentInPLC_.size(); ++i) {
        lblRevIdentInPLC_[i]->Show(Printable(shown.lblRevIdentInPLC[i]));
        lblRevIdentInPLC_[i]->setEnabled(shown.controls.lblRevIdentInPLC());
    }
    for (std::size_t i = 0; i < lblRevIdentOnDisk_.size(); ++i)
        lblRevIdentOnDisk_[i]->Show(Printable(shown.lblRevIdentOnDisk[i]));
}
