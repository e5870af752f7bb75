#include "pls/views/frmPLSView.h"

#include "base/FileSystem.h"
#include "controls/grid/Grid.h"
#include "link/TargetBoards.h"
#include "pls/PLSBoards.h"
#include "pls/PLSLayout.h"
#include "pls/ReadPLSFileData.h"
#include "pls/views/PLSViewFrames.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
constexpr int rowsAtLoad = 72;
constexpr int headingRows = 1;
const QString heading = QStringLiteral("<CHANNEL NUMBER:|^ON POS|^Off POS");
constexpr int widestLabel = 21;   // characters, capitals as a rule
constexpr int gridHeight = 40;    // lines
constexpr int widestPosition = 9; // characters: "Off POS" and some air
} // namespace

frmPLSView::frmPLSView(Dialogs& dialogs, QWidget* parent) : QDialog(parent), dialogs_(dialogs) {
    setObjectName(QStringLiteral("frmPLSView"));
    setModal(true);
    BuildForm();
}

void frmPLSView::BuildForm() {
    auto* form = new QVBoxLayout(this);
    for (const auto frame : {PLSViewFrame::R6500Config, PLSViewFrame::StandardConfig}) {
        auto* config = new PLSConfigFrame(frame);
        configFrames_[static_cast<int>(frame)] = config;
        form->addWidget(config, 1);
    }
    form->addWidget(BuildGridFrame(), 1);
    auto* buttons = new QDialogButtonBox;
    QPushButton* cmdOk = buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole);
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    cmdOk->setDefault(true);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    form->addWidget(buttons);
}

QGroupBox* frmPLSView::BuildGridFrame() {
    gridFrame_ = new QGroupBox(tr("Timing Setpoints:"));
    gridFrame_->setObjectName(QStringLiteral("fraPLS(2)"));
    fgPLSChannels_ = new Grid(headingRows);
    fgPLSChannels_->setObjectName(QStringLiteral("fgPLSChannels"));
    fgPLSChannels_->setAccessibleName(tr("Timing Setpoints"));
    auto* layout = new QVBoxLayout(gridFrame_);
    layout->addWidget(fgPLSChannels_);
    connect(fgPLSChannels_, &Grid::Resized, this, &frmPLSView::FitGrid);
    return gridFrame_;
}

// gPLS is lent to the readers only: whoever works with it finds it as it was, before a single event
// can run.
void frmPLSView::ShowMe(const QString& FileName) {
    {
        const QScopedValueRollback<PLSRecord> lent(gPLS);
        board_ = ProgramBoardIndex(FileName);
        frame_ = PLSViewFrameOf(FileSystem().GetExtensionName(FileName), board_);
        gPLS.Channels = PLSLayoutOf(board_).channelCounts.front();
        ReadPLSFileData(gHdnFile, dialogs_);
        shown_ = gPLS;
    }
    Load();
    exec();
}

void frmPLSView::Load() {
    gridFrame_->setVisible(frame_ == PLSViewFrame::Setpoints);
    ShowConfiguration();
    SetUpGrid();
    setWindowTitle(PLSViewCaption(gHdnFile, board_));
    if (frame_ == PLSViewFrame::Setpoints)
        fgPLSChannels_->setFocus();
    else
        findChild<QPushButton*>(QStringLiteral("cmdOk"))->setFocus();
    LayoutView();
}

// The set of a board that is no limit switch board has no configuration: its values stay empty.
void frmPLSView::ShowConfiguration() {
    for (const auto frame : {PLSViewFrame::R6500Config, PLSViewFrame::StandardConfig}) {
        PLSConfigFrame* config = configFrames_[static_cast<int>(frame)];
        config->setVisible(frame == frame_);
        if (IsPLSBoard(TimingBoardIndex(board_)))
            config->Show(shown_);
    }
}

void frmPLSView::SetUpGrid() {
    fgPLSChannels_->SetCols(3);
    fgPLSChannels_->SetRows(rowsAtLoad);
    fgPLSChannels_->SetFormatString(heading);
    if (frame_ == PLSViewFrame::Setpoints)
        FillChannelGrid();
}

// Room for the longest heading beside the positions.
QSize frmPLSView::GridViewSize() const {
    const int heading =
        fontMetrics().horizontalAdvance(QStringLiteral(" CH77 - ") + QString(widestLabel, u'M'));
    const int positions = 2 * widestPosition * fontMetrics().averageCharWidth();
    const int frames = sizeHint().width() - fgPLSChannels_->sizeHint().width() +
                       fgPLSChannels_->verticalScrollBar()->sizeHint().width();
    return {heading + positions + std::max(frames, 0), gridHeight * fontMetrics().height()};
}

// From the main window's corner on and no larger than it; smaller where what is shown needs less.
void frmPLSView::LayoutView() {
    const QWidget* main = parentWidget() ? parentWidget()->window() : nullptr;
    QSize size = sizeHint();
    if (frame_ == PLSViewFrame::Setpoints)
        size = GridViewSize();
    if (main) {
        size = size.boundedTo(main->size());
        move(main->geometry().topLeft());
    }
    resize(size.expandedTo(minimumSizeHint()));
}

void frmPLSView::FillChannelGrid() {
    const QList<ChannelGridRow> rows = ChannelGridRows(shown_, PLSLayoutOf(board_));
    fgPLSChannels_->SetRows(headingRows);
    fgPLSChannels_->SetRows(headingRows + static_cast<int>(rows.size()));
    for (int row = 0; row < rows.size(); ++row)
        for (int col = 0; col < static_cast<int>(rows[row].size()); ++col)
            fgPLSChannels_->SetTextMatrix(headingRows + row, col, rows[row][col]);
}

// Never fewer rows than fit, so that a short list shows as the top of a table.
void frmPLSView::FitGrid() {
    ShareGridWidth();
    if (frame_ != PLSViewFrame::Setpoints)
        return;
    const int fitting =
        fgPLSChannels_->height() / fgPLSChannels_->verticalHeader()->defaultSectionSize() - 1;
    if (fgPLSChannels_->Rows() < fitting)
        fgPLSChannels_->SetRows(fitting);
}

void frmPLSView::ShareGridWidth() {
    const int character = fontMetrics().averageCharWidth();
    const int position = widestPosition * character;
    fgPLSChannels_->ShareWidth({1, 0, 0}, {position, position, position});
}

void frmPLSView::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    FitGrid();
}
