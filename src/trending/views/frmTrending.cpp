#include "trending/views/frmTrending.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/grid/Grid.h"
#include "reports/DrawingSurface.h"
#include "session/Globals.h"
#include "trending/views/GraphView.h"
#include <algorithm>
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

namespace {
// Every sample moves all rows: painting them more often would take the link's time, and nobody
// reads faster. Milliseconds.
constexpr int gatheringTime = 100;
} // namespace

TrendingHost::~TrendingHost() = default;

frmTrending::frmTrending(const Seams& seams, QWidget* parent)
    : QWidget(parent), seams_(seams), acquisition_(seams.link, seams.clock, *this),
      form_(*this, graph_), entries_(new NumericEntries(
                                1, seams.dialogs, *form_.cmdDefault,
                                [](int) { return QStringLiteral("Graphing Samples"); }, this)) {
    setObjectName(QStringLiteral("frmTrending"));
    setWindowTitle(QStringLiteral("Trend Data"));
    tmrTrending_.setObjectName(QStringLiteral("tmrTrending"));
    tmrTrending_.setSingleShot(true);
    tmrTrending_.setTimerType(Qt::PreciseTimer);
    showSamples_.setSingleShot(true);
    form_.fgTrend->SetCols(TrendSamples::columns);
    form_.fgTrend->SetFormatString(QStringLiteral("<|<|^"));
    form_.fgTrend->setContextMenuPolicy(Qt::CustomContextMenu);
    form_.picGraph->setContextMenuPolicy(Qt::CustomContextMenu);
    form_.cboAddress->installEventFilter(this);
    Connect();
    ConnectGraphEntries();
    RowsChanged();
}

frmTrending::~frmTrending() {
    seams_.loops.Leave(*this);
}

void frmTrending::Connect() {
    connect(&tmrTrending_, &QTimer::timeout, this, &frmTrending::Tick);
    connect(&showSamples_, &QTimer::timeout, this, &frmTrending::ShowSamples);
    connect(form_.cboTargetBoard, &QComboBox::currentIndexChanged, this,
            [this](int entry) { acquisition_.Variable().SelectBoard(entry); });
    connect(form_.cboAddress, &QComboBox::activated, this, [this](int entry) {
        TakeAddress(acquisition_.Variable().Click(form_.cboAddress->itemText(entry)));
    });
    connect(form_.optChangeOfState, &QRadioButton::toggled, this, &frmTrending::SelectOption);
    connect(form_.cboOptions, &QComboBox::activated, this, [this](int entry) {
        acquisition_.SelectInterval(entry);
        form_.cmdDefault->setFocus();
        seams_.loops.Wake();
    });
    connect(form_.chkAcquire, &QCheckBox::toggled, this, [this](bool on) {
        acquisition_.SetAcquire(on);
        seams_.loops.Wake();
    });
    connect(form_.cmdClear, &QPushButton::clicked, this, [this] { acquisition_.Clear(); });
    connect(form_.cmdReset, &QPushButton::clicked, this, [this] { acquisition_.ResetCounter(); });
    new QShortcut(QKeySequence(QKeySequence::Copy), this, this, &frmTrending::CopyGraph,
                  Qt::WidgetWithChildrenShortcut);
    connect(form_.fgTrend, &Grid::Scrolled, this, &frmTrending::Renumber);
    connect(form_.fgTrend, &Grid::Resized, this, &frmTrending::SizeGrid);
    for (QWidget* place :
         {static_cast<QWidget*>(form_.fgTrend), static_cast<QWidget*>(form_.picGraph)})
        connect(place, &QWidget::customContextMenuRequested, this, [this, place](const QPoint& at) {
            seams_.host.PopUpTrendMenu(place->mapToGlobal(at));
        });
}

void frmTrending::ConnectGraphEntries() {
    form_.updSamples->SetRange(leastSamplesToGraph, mostSamplesToGraph);
    form_.updSamples->SetValue(mostSamplesToGraph);
    entries_->Add(0, *form_.txtSamples, *form_.updSamples);
    const auto take = [this](int, const QString& text) { samplesToGraph_ = text.toInt(); };
    connect(entries_, &NumericEntries::Accepted, this, take);
    connect(entries_, &NumericEntries::Stepped, this, take);
    connect(form_.cmdGraphData, &QPushButton::clicked, this, &frmTrending::GraphData);
    connect(form_.chkLiveData, &QCheckBox::toggled, this, [this](bool on) {
        if (on && !graphDrawn_)
            DrawFrame();
    });
}

void frmTrending::Activate() {
    seams_.host.ShowTrendCommands(true);
    gPrintContext = PrintContext::Trending;
    firstPass_ = true;
    seams_.loops.Activate(*this);
    if (!viewRunning_) {
        viewRunning_ = true;
        TimerChanged();
    }
}

void frmTrending::Deactivate() {
    seams_.host.ShowTrendCommands(false);
}

void frmTrending::closeEvent(QCloseEvent* event) {
    seams_.loops.Leave(*this);
    viewRunning_ = false;
    TimerChanged();
    seams_.host.ShowTrendCommands(false);
    QWidget::closeEvent(event);
}

// The loop draws the graph in its new size.
void frmTrending::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    graphRequested_ = true;
    seams_.loops.Wake();
}

ViewLoop::Step frmTrending::TakeStep() {
    if (graphRequested_) {
        graphRequested_ = false;
        GraphData();
    }
    if (firstPass_) {
        firstPass_ = false;
        GraphSamples();
    }
    return acquisition_.TakeStep();
}

void frmTrending::TimerChanged() {
    tmrTrending_.stop();
    const auto milliseconds = acquisition_.TimerMilliseconds();
    if (viewRunning_ && milliseconds)
        tmrTrending_.start(*milliseconds);
}

void frmTrending::Tick() {
    acquisition_.TimerTick();
    TimerChanged();
}

void frmTrending::SelectOption() {
    const bool interval = form_.optTimeInterval->isChecked();
    form_.cboOptions->setEnabled(interval);
    acquisition_.SelectOption(interval ? SampleOption::TimeInterval : SampleOption::ChangeOfState);
    form_.cmdDefault->setFocus();
    seams_.loops.Wake();
}

bool frmTrending::eventFilter(QObject* watched, QEvent* event) {
    if (watched != form_.cboAddress)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            GiveUpAddress();
        else if (key == Qt::Key_Return || key == Qt::Key_Enter)
            EnterAddress();
        else
            return false;
        return true;
    }
    // The first entry is in use already, and "(none)" must not hold the user fast.
    if (event->type() == QEvent::FocusOut && form_.cboAddress->isVisible() &&
        IsWithinProgram(*static_cast<QFocusEvent*>(event)) &&
        form_.cboAddress->currentText() != acquisition_.Variable().FirstEntry())
        QMetaObject::invokeMethod(this, &frmTrending::LeaveAddress, Qt::QueuedConnection);
    return false;
}

// A button that the mouse holds down would forget its click when the focus leaves it: the focus
// goes on once the button is released.
void frmTrending::LeaveAddress() {
    auto* pressed = qobject_cast<QAbstractButton*>(focusWidget());
    const bool held = pressed && pressed->isDown();
    const auto outcome = acquisition_.Variable().Enter(form_.cboAddress->currentText());
    if (!held || outcome == TrendVariable::Entered::Refused) {
        TakeAddress(outcome);
        return;
    }
    ShowAddresses();
    connect(
        pressed, &QAbstractButton::released, form_.cmdDefault,
        [this] { form_.cmdDefault->setFocus(); }, Qt::SingleShotConnection);
}

void frmTrending::EnterAddress() {
    TakeAddress(acquisition_.Variable().Enter(form_.cboAddress->currentText()));
}

void frmTrending::ShowAddresses() {
    const QSignalBlocker quiet(form_.cboAddress);
    form_.cboAddress->clear();
    form_.cboAddress->addItems(acquisition_.Variable().List());
    form_.cboAddress->setCurrentIndex(0);
    seams_.loops.Wake();
}

void frmTrending::TakeAddress(TrendVariable::Entered outcome) {
    ShowAddresses();
    if (outcome == TrendVariable::Entered::Taken)
        form_.cmdDefault->setFocus();
    else
        form_.cboAddress->setFocus();
}

void frmTrending::GiveUpAddress() {
    form_.cboAddress->setCurrentIndex(0);
    form_.cboAddress->setEditText(acquisition_.Variable().FirstEntry());
    form_.cmdDefault->setFocus();
}

// Samples come faster than they can be read; showing each would cost the pace of the link.
void frmTrending::SampleAdded(bool) {
    if (!showSamples_.isActive())
        showSamples_.start(gatheringTime);
}

void frmTrending::ShowSamples() {
    form_.lblSamples->setText(acquisition_.CounterText());
    const TrendSamples& samples = acquisition_.Samples();
    form_.fgTrend->SetRows(samples.Rows());
    const int changed = std::min(samples.Rows() - 1, TrendSamples::removedRow);
    for (int row = 1; row <= changed; ++row)
        for (int column = 1; column < TrendSamples::columns; ++column)
            form_.fgTrend->SetTextMatrix(row, column, samples.Text(row, column));
    Renumber();
    if (form_.chkLiveData->isChecked())
        GraphSamples();
}

void frmTrending::RowsChanged() {
    const TrendSamples& samples = acquisition_.Samples();
    form_.fgTrend->Clear();
    form_.fgTrend->SetRows(samples.Rows());
    for (int row = 0; row < samples.Rows(); ++row)
        for (int column = row == 0 ? 0 : 1; column < TrendSamples::columns; ++column)
            form_.fgTrend->SetTextMatrix(row, column, samples.Text(row, column));
    SizeGrid();
}

void frmTrending::Renumber() {
    for (int row = form_.fgTrend->TopRow(); form_.fgTrend->RowIsVisible(row); ++row)
        form_.fgTrend->SetTextMatrix(row, 0, acquisition_.Samples().Text(row, 0));
}

// While samples are gathered, the counter is shown with them.
void frmTrending::CounterChanged() {
    if (!showSamples_.isActive())
        form_.lblSamples->setText(acquisition_.CounterText());
}

// The numbers have their width, which a file of many rows makes larger; time and value share the
// rest.
void frmTrending::SizeGrid() {
    constexpr int numberWidth = 500 / 15; // pixels of 15 twips
    const QFontMetrics& metrics = form_.fgTrend->fontMetrics();
    const int digit = metrics.horizontalAdvance(u'0');
    const int digits = static_cast<int>(QString::number(acquisition_.Samples().Rows()).size());
    form_.fgTrend->ShareWidth(
        {0, 1, 1}, {std::max(numberWidth, (digits + 1) * digit), 10 * digit, 12 * digit});
    Renumber();
}

void frmTrending::DrawFrame() {
    graph_.DrawGraphFrame(form_.picGraph->Surface());
    graphDrawn_ = true;
    form_.picGraph->update();
}

void frmTrending::GraphData() {
    DrawFrame();
    GraphSamples();
}

void frmTrending::GraphSamples() {
    const std::vector<qint32> values = ValuesToGraph(acquisition_.Samples(), samplesToGraph_);
    graph_.DrawGraphData(values, PaletteColour::LightBlue);
    form_.picGraph->Show(values);
}
