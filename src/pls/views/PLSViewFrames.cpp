#include "pls/views/PLSViewFrames.h"

#include "controls/ValueLabel.h"
#include <QGridLayout>
#include <QLabel>

namespace {
constexpr int speedCompRowsBesideEachOther = 4;
constexpr int secondPair = 3; // column of the second caption of a row; column 2 parts the pairs

QString IndexedName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

int HalfLine(const QWidget& widget) {
    return widget.fontMetrics().height() / 2;
}
} // namespace

PLSConfigFrame::PLSConfigFrame(PLSViewFrame frame, QWidget* parent)
    : QGroupBox(tr("PLS Configuration:"), parent) {
    setObjectName(IndexedName("fraPLS", static_cast<int>(frame)));
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(2 * HalfLine(*this));
    if (frame == PLSViewFrame::R6500Config)
        AddR6500Rows(*grid);
    else
        AddStandardRows(*grid);
    grid->setRowStretch(grid->rowCount(), 1);
}

// A caption and its value; the value stays where it is whatever it holds.
void PLSConfigFrame::AddRow(QGridLayout& grid, int place, int column, int row) {
    auto* caption = new QLabel(PCFRowCaption(row));
    caption->setObjectName(IndexedName("lblPCFText", row));
    grid.addWidget(caption, place, column);
    auto* value = new ValueLabel(PCFRowCaption(row));
    value->setObjectName(IndexedName("lblPCFValue", row));
    value->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000 RPM")));
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    grid.addWidget(value, place, column + 1);
    lblPCFValue_[row] = value;
}

void PLSConfigFrame::AddR6500Rows(QGridLayout& grid) {
    int place = 0;
    for (int row = 0; row < firstSpeedCompRow; ++row)
        AddRow(grid, place++, 0, row);
    grid.setRowMinimumHeight(place++, HalfLine(*this));
    grid.addWidget(new QLabel(tr("Speed Compensation (advance):")), place++, 0, 1, -1);
    for (int row = 0; row < speedCompRowsBesideEachOther; ++row) {
        AddRow(grid, place + row, 0, firstSpeedCompRow + row);
        AddRow(grid, place + row, secondPair,
               firstSpeedCompRow + speedCompRowsBesideEachOther + row);
    }
    grid.setColumnMinimumWidth(2, 2 * HalfLine(*this));
    grid.setColumnStretch(secondPair + 2, 1);
}

// Groups as the board has them: general, brake wear compensation, speed window.
void PLSConfigFrame::AddStandardRows(QGridLayout& grid) {
    constexpr int firstOfGroup[] = {14, 19};
    int place = 0;
    for (int row = firstStandardRow; row < pcfRows; ++row) {
        if (row == firstOfGroup[0] || row == firstOfGroup[1])
            grid.setRowMinimumHeight(place++, HalfLine(*this));
        AddRow(grid, place++, 0, row);
    }
    grid.setColumnStretch(2, 1);
}

void PLSConfigFrame::Show(const PLSRecord& record) {
    for (int row = 0; row < pcfRows; ++row)
        if (lblPCFValue_[row])
            lblPCFValue_[row]->Show(PCFRowValue(row, record));
}
