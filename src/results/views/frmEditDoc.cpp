#include "results/views/frmEditDoc.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "controls/ViewHelpers.h"
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QPushButton>

namespace {
constexpr int fixedRows = 1;
constexpr int twipsPerPixel = 15; // at 96 dots per inch
constexpr int headPadding = 12;   // pixels around a head in a large font
constexpr QSize usualSize(620, 460);
constexpr qsizetype longestCell = 1000; // characters; no editor writes a tenth of it

/// A column of the grid.
struct DocColumn {
    const char* head;
    int width; ///< twips
    int share; ///< of the width that is left
};
constexpr std::array<DocColumn, 3> columns{
    {{"Variable", 1000, 0}, {"NicName", 1500, 1}, {"Description", 3000, 2}}};

QString CellText(const QString& text) {
    return text.size() <= longestCell ? text : text.left(longestCell) + u'…';
}
} // namespace

frmEditDoc::frmEditDoc(Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), fgEditDoc_(new Grid(fixedRows, this)) {
    setObjectName(QStringLiteral("frmEditDoc"));
    setWindowTitle(QStringLiteral("Variable Documentation"));
    setModal(true);
    BuildForm();
    SetUpGrid();
    connect(fgEditDoc_, &Grid::Resized, this, &frmEditDoc::SizeGrid);
    CenterForm(*this);
}

// The buttons end the view and do nothing else: there is nothing to keep or to give up.
void frmEditDoc::BuildForm() {
    fgEditDoc_->setObjectName(QStringLiteral("fgEditDoc"));
    fgEditDoc_->setAccessibleName(QStringLiteral("Documented variables"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOk"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* form = new QVBoxLayout(this);
    form->addWidget(fgEditDoc_, 1);
    form->addWidget(buttons);
    resize(usualSize);
}

void frmEditDoc::InitializeVar(const QString& path) {
    namPath_ = path + QStringLiteral(".nam");
    docPath_ = path + QStringLiteral(".doc");
    setWindowTitle(
        QStringLiteral("Variable Documentation [%1]").arg(FileSystem().GetFileName(path)));
}

void frmEditDoc::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    QMetaObject::invokeMethod(this, &frmEditDoc::Form_Activate, Qt::QueuedConnection);
}

void frmEditDoc::Form_Activate() {
    SetUpGrid();
    fgEditDoc_->SetCell(1, 1);
    fgEditDoc_->setFocus();
    DoEvents();
    DisplayData();
}

void frmEditDoc::SetUpGrid() {
    constexpr int rowsAtFirst = 3;
    fgEditDoc_->Clear();
    fgEditDoc_->SetRows(rowsAtFirst);
    fgEditDoc_->SetCols(static_cast<int>(columns.size()));
    fgEditDoc_->SetFormatString(QStringLiteral("^|<|<"));
    for (int column = 0; column < static_cast<int>(columns.size()); ++column)
        fgEditDoc_->SetTextMatrix(0, column,
                                  QString::fromLatin1(columns[std::size_t(column)].head));
    SizeGrid();
}

void frmEditDoc::SizeGrid() {
    std::vector<int> shares;
    std::vector<int> widths;
    for (const DocColumn& column : columns) {
        shares.push_back(column.share);
        const int head = fgEditDoc_->fontMetrics().horizontalAdvance(QLatin1String(column.head));
        widths.push_back(qMax(column.width / twipsPerPixel, head + headPadding));
    }
    fgEditDoc_->ShareWidth(shares, widths);
}

void frmEditDoc::DisplayData() {
    try {
        VariableDoc doc;
        const int entries = ReadFiles(doc);
        fgEditDoc_->SetRows(fixedRows + qBound(1, entries, VariableDoc::mostVariables));
        ShowRows(doc.Rows());
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("EditDoc DisplayData"), MsgStyle::Critical);
    }
}

int frmEditDoc::ReadFiles(VariableDoc& doc) const {
    int most = 0;
    if (FileSystem().FileExists(namPath_))
        most = doc.Read(namPath_, NameKind::NicName);
    if (FileSystem().FileExists(docPath_))
        most = qMax(most, doc.Read(docPath_, NameKind::Description));
    return most;
}

// Files that name different variables make more rows than the larger of them has entries.
void frmEditDoc::ShowRows(const std::vector<VariableDoc::Row>& rows) {
    const int needed = fixedRows + static_cast<int>(rows.size());
    if (fgEditDoc_->Rows() < needed)
        fgEditDoc_->SetRows(needed);
    fgEditDoc_->SetCell(1, 1);
    int line = fixedRows;
    for (const VariableDoc::Row& row : rows) {
        fgEditDoc_->SetTextMatrix(line, 0, row.variable);
        fgEditDoc_->SetTextMatrix(line, 1, CellText(row.nicName));
        fgEditDoc_->SetTextMatrix(line, 2, CellText(row.description));
        ++line;
    }
}
