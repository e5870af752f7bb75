#include "pls/views/TimingForm.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/grid/Grid.h"
#include "pls/MachineMotion.h"
#include "pls/PLSBoards.h"
#include "pls/views/CycleStripView.h"
#include "pls/views/PanelRow.h"
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
constexpr int boxCharacters = 5; // room for four digits and what is typed by mistake
constexpr int gridColumns = 3;
constexpr int rowsAtLoad = 24;
constexpr int darkBelow = 128; // lightness of a ground, 0 to 255

const QColor gridTextOnLight(0x00, 0x00, 0xff);
const QColor gridTextOnDark(0x8a, 0xb8, 0xff);

QString IndexedName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

template <class Control>
Control* Make(const char* name, const QString& caption, QWidget* parent = nullptr) {
    auto* control = new Control(caption, parent);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QLabel* PlainLabel(const QString& name, const QString& text, QWidget* parent = nullptr) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

// Text box and arrows of one entry.
EntryParts MakePair(const char* boxName, const char* upDownName, int index, QWidget* frame) {
    EntryParts parts;
    parts.pair = new QWidget(frame);
    parts.box = new QLineEdit;
    parts.box->setObjectName(IndexedName(boxName, index));
    parts.box->setAlignment(Qt::AlignRight);
    parts.box->setFixedWidth(parts.box->fontMetrics().horizontalAdvance(u'0') * boxCharacters + 14);
    parts.upDown = new EntryUpDown(*parts.box);
    parts.upDown->setObjectName(IndexedName(upDownName, index));
    auto* layout = new QHBoxLayout(parts.pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(parts.box);
    layout->addWidget(parts.upDown);
    return parts;
}

// Options of which the user has one, and the view may have none.
template <std::size_t count>
void MakeGroup(std::array<QRadioButton*, count>& options, const char* name,
               std::initializer_list<const char*> captions, QWidget* frame) {
    auto* group = new QButtonGroup(frame);
    int index = 0;
    for (const char* caption : captions) {
        auto* option = new QRadioButton(QLatin1String(caption), frame);
        option->setObjectName(IndexedName(name, index));
        group->addButton(option, index);
        options[static_cast<std::size_t>(index++)] = option;
    }
}
} // namespace

TimingForm::TimingForm(QWidget& view)
    : lblTargetBoard(
          PlainLabel(QStringLiteral("lblTargetBoard"), QStringLiteral("Target Board:"), &view)),
      cboTargetBoard(new QComboBox(&view)) {
    cboTargetBoard->setObjectName(QStringLiteral("cboTargetBoard"));
    for (const PLSBoard& board : PLSBoards())
        cboTargetBoard->addItem(QString::fromUtf16(board.item));
    cmdDefault = MakeDefaultButton(view); // first, so that Tab goes on from it to the grid
    MakeFrames(view);
    MakeConfigEntries();
    MakeTimingEntries();
    MakeOptions();
    MakeButtons(view);
    MakeGrid();
    MakePanels(view);
    NameForScreenReaders();
    LayOut(view);
}

void TimingForm::MakeFrames(QWidget& view) {
    constexpr const char* captions[] = {
        "PLS Configuration",     "Speed Compensation", "Timing Setpoints",
        "Resolver Offset",       "PLS Channel",        "PLS Configuration",
        "CH00 Brake Wear Comp.", "CH17 Speed Window",  "Channel Setpoint"};
    for (std::size_t i = 0; i < fraTmg.size(); ++i) {
        fraTmg[i] = new QGroupBox(QLatin1String(captions[i]), &view);
        fraTmg[i]->setObjectName(IndexedName("fraTmg", static_cast<int>(i)));
    }
}

void TimingForm::MakeConfigEntries() {
    for (int i = 0; i < plsEntryCount; ++i) {
        const PLSEntry& entry = ConfigEntry(i);
        QWidget* frame = fraTmg[static_cast<std::size_t>(entry.frame)];
        EntryParts& parts = Config(i);
        parts = MakePair("txtPLS_CFG", "updPLS_CFG", i, frame);
        parts.label =
            PlainLabel(IndexedName("lblPLS_CFG", i), QString::fromUtf8(entry.label), frame);
        parts.box->setAccessibleName(parts.label->text());
        parts.upDown->SetRange(entry.limits.min, entry.limits.max);
    }
}

void TimingForm::MakeTimingEntries() {
    for (int i = 0; i < timingEntryCount; ++i) {
        const TimingEntry& entry = SetpointEntry(i);
        QWidget* frame = fraTmg[static_cast<std::size_t>(entry.frame)];
        EntryParts& parts = Timing(i);
        parts = MakePair("txtTmg", "updTmg", i, frame);
        const QString meaning = QString::fromUtf8(entry.meaning);
        if (entry.label >= 0)
            parts.label = PlainLabel(IndexedName("lblTmg", entry.label), meaning, frame);
        parts.box->setAccessibleName(meaning);
        parts.upDown->SetRange(entry.limits.min, entry.limits.max);
    }
}

void TimingForm::MakeOptions() {
    MakeGroup(optPlsChan, "optPlsChan", {"8 Channels", "16 Channels", "32 Channels", "64 Channels"},
              fraTmg[0]);
    MakeGroup(optR6PlsChan, "optR6PlsChan", {"16 Channels", "32 Channels"}, fraTmg[5]);
    chkR6BWComp =
        Make<QCheckBox>("chkR6BWComp", QStringLiteral("Brake Wear Compensation"), fraTmg[6]);
    chkR6SpdWinEn = Make<QCheckBox>("chkR6SpdWinEn", QStringLiteral("Speed Window"), fraTmg[7]);
    lblBWComp[0] = PlainLabel(IndexedName("lblBWComp", 0), QStringLiteral("ON"), fraTmg[6]);
    lblBWComp[1] = PlainLabel(IndexedName("lblBWComp", 1), QStringLiteral("OFF"), fraTmg[6]);
}

void TimingForm::MakeButtons(QWidget& view) {
    const auto button = [](const char* name, const char* caption, QWidget* frame) {
        return Make<QPushButton>(name, QLatin1String(caption), frame);
    };
    cmdRecallChan = button("cmdRecallChan", "&Recall Channel", fraTmg[4]);
    cmdClearChan = button("cmdClearChan", "&Clear Channel", fraTmg[4]);
    cmdClearAll = button("cmdClearAll", "Clear &All", fraTmg[4]);
    cmdAddSetpoint = button("cmdAddSetpoint", "A&dd Setpoint", fraTmg[8]);
    cmdAdjustSetpoint = button("cmdAdjustSetpoint", "Ad&just Setpoint", fraTmg[8]);
    cmdPulseTrain = button("cmdPulseTrain", "&Pulse Train", fraTmg[8]);
    cmdSetOffset = button("cmdSetOffset", "Set &Offset", fraTmg[3]);
    cmdResetPLSConfig = button("cmdResetPLSConfig", "&Reset PLS Config", &view);
    lblSetpointRecall = PlainLabel(QStringLiteral("lblSetpointRecall"), QString(), &view);
    lblSetpointRecall->hide();
}

void TimingForm::MakeGrid() {
    fgPLSChannels = new Grid(1, fraTmg[2]);
    fgPLSChannels->setObjectName(QStringLiteral("fgPLSChannels"));
    fgPLSChannels->SetCols(gridColumns);
    fgPLSChannels->SetRows(rowsAtLoad);
    fgPLSChannels->SetFormatString(QStringLiteral("^Chan #|^ON POS|^Off POS"));
    for (int col = 1; col < gridColumns; ++col)
        fgPLSChannels->Model().SetFixedPitch(col);
    picCycle = new CycleStripView(fraTmg[2]);
    picCycle->setObjectName(QStringLiteral("picCycle"));
}

void TimingForm::MakePanels(QWidget& view) {
    constexpr const char* toolTips[] = {"Resolver RPM:", "Machine Position", "Resolver Offset",
                                        "PLS Scale Factor"};
    constexpr const char* texts[] = {MachineTexts::noSpeed, MachineTexts::noPosition,
                                     MachineTexts::noOffset, MachineTexts::noScale};
    sbrMachineTiming = new PanelRow(&view);
    sbrMachineTiming->setObjectName(QStringLiteral("sbrMachineTiming"));
    for (int i = 0; i < MachinePanel::Count; ++i) {
        const auto place = static_cast<std::size_t>(i);
        panels[place] = PlainLabel(IndexedName("sbrMachineTiming", i + 1),
                                   QLatin1String(texts[place]), sbrMachineTiming);
        panels[place]->setToolTip(QLatin1String(toolTips[place]));
        panels[place]->setAccessibleDescription(QLatin1String(toolTips[place]));
        panels[place]->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        panels[place]->setMargin(3);
    }
}

void TimingForm::NameForScreenReaders() {
    lblTargetBoard->setBuddy(cboTargetBoard);
    cboTargetBoard->setAccessibleName(QStringLiteral("Target board"));
    fgPLSChannels->setAccessibleName(QStringLiteral("Timing setpoints"));
    fgPLSChannels->setAccessibleDescription(
        QStringLiteral("Select a setpoint to edit it; type a number to begin a new ON position."));
}

void TimingForm::ShowPanel(int panel, const QString& text) {
    QLabel* label = panels[static_cast<std::size_t>(panel)];
    if (label->text() != text)
        label->setText(text);
}

void TimingForm::ShowGridColours(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < darkBelow;
    QPalette own = palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        own.setColor(group, QPalette::Text, dark ? gridTextOnDark : gridTextOnLight);
    fgPLSChannels->setPalette(own);
}
