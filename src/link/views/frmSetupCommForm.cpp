#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/ValueLabel.h"
#include "link/views/frmSetupComm.h"
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

// How the port settings are laid out.

namespace {
constexpr int entryDigits = 3;
constexpr int listLines = 6;
constexpr int outcomeLines = 4;

// Rows whose columns do not touch each other.
class RoomyRow final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize room(2 * option.fontMetrics.averageCharWidth(), 4);
        return QStyledItemDelegate::sizeHint(option, index) + room;
    }
};

QPushButton* Button(const char* name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}
} // namespace

void frmSetupComm::BuildForm() {
    auto* form = new QVBoxLayout(this);
    form->addLayout(PortEntry());
    form->addWidget(PortList(), 1);
    form->addWidget(SpeedFrame());
    form->addLayout(TestRow());
    form->addLayout(Buttons());
    entries_ = new NumericEntries(
        1, context_.dialogs, *MakeDefaultButton(*this),
        [](int) { return QStringLiteral("Comm Port"); }, this);
    entries_->Add(0, *txtCommPort_, *updCommPort_);
    const QWidgetList order{txtCommPort_, lstPorts_, optPortSpeed_[0], optPortSpeed_[1],
                            cmdTest_,     lblTest_,  cmdSave_,         cmdCancel_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QBoxLayout* frmSetupComm::PortEntry() {
    auto* label = new QLabel(tr("Comm &Port:"));
    txtCommPort_ = new QLineEdit;
    txtCommPort_->setObjectName(QStringLiteral("txtCommPort"));
    txtCommPort_->setAccessibleName(tr("Comm port number"));
    txtCommPort_->setFixedWidth(txtCommPort_->fontMetrics().horizontalAdvance(u'0') *
                                (entryDigits + 3));
    label->setBuddy(txtCommPort_);
    updCommPort_ = new EntryUpDown(*txtCommPort_);
    updCommPort_->setObjectName(QStringLiteral("updCommPort"));
    updCommPort_->SetRange(PortSettings::lowestPort, PortSettings::highestPort);
    lblDevice_ = new QLabel;
    lblDevice_->setObjectName(QStringLiteral("lblDevice"));
    lblDevice_->setTextFormat(Qt::PlainText);
    connect(txtCommPort_, &QLineEdit::textChanged, this, &frmSetupComm::ShowDevice);

    auto* pair = new QHBoxLayout;
    pair->setSpacing(0);
    pair->addWidget(txtCommPort_);
    pair->addWidget(updCommPort_);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addLayout(pair);
    row->addSpacing(row->spacing());
    row->addWidget(lblDevice_, 1);
    return row;
}

QWidget* frmSetupComm::PortList() {
    lstPorts_ = new QTreeWidget;
    lstPorts_->setObjectName(QStringLiteral("lstPorts"));
    lstPorts_->setAccessibleName(tr("Ports of this computer"));
    lstPorts_->setHeaderLabels({tr("Port"), tr("Device"), tr("Description")});
    lstPorts_->setRootIsDecorated(false);
    lstPorts_->setUniformRowHeights(true);
    lstPorts_->setTabKeyNavigation(false);
    lstPorts_->setItemDelegate(new RoomyRow(lstPorts_));
    lstPorts_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lstPorts_->header()->setSectionsMovable(false);
    const int line = lstPorts_->fontMetrics().height() + 4;
    lstPorts_->setMinimumHeight(line * listLines);
    lstPorts_->setMinimumWidth(lstPorts_->fontMetrics().averageCharWidth() * 64);
    connect(lstPorts_, &QTreeWidget::itemClicked, this, &frmSetupComm::PortChosen);
    connect(lstPorts_, &QTreeWidget::itemActivated, this, &frmSetupComm::PortChosen);
    return lstPorts_;
}

QWidget* frmSetupComm::SpeedFrame() {
    auto* frame = new QGroupBox(tr("Port Speed"));
    frame->setObjectName(QStringLiteral("fraPortSpeed"));
    auto* row = new QHBoxLayout(frame);
    const std::array<QString, 2> captions{QStringLiteral("9600"), QStringLiteral("19200")};
    for (std::size_t index = 0; index < captions.size(); ++index) {
        auto* option = new QRadioButton(captions.at(index));
        option->setObjectName(QStringLiteral("optPortSpeed(%1)").arg(index));
        row->addWidget(option);
        optPortSpeed_.at(index) = option;
    }
    row->addStretch();
    return frame;
}

QBoxLayout* frmSetupComm::TestRow() {
    cmdTest_ = Button("cmdTest", tr("&Test"));
    connect(cmdTest_, &QPushButton::clicked, this, &frmSetupComm::cmdTest_Click);
    lblTest_ = new ValueLabel;
    lblTest_->setObjectName(QStringLiteral("lblTest"));
    lblTest_->setWordWrap(true);
    lblTest_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblTest_->setMinimumHeight(lblTest_->fontMetrics().lineSpacing() * outcomeLines);
    auto* row = new QHBoxLayout;
    row->addWidget(cmdTest_, 0, Qt::AlignTop);
    row->addWidget(lblTest_, 1);
    return row;
}

// Cancel takes no focus by a click: who gives up need not first put the entry right.
QBoxLayout* frmSetupComm::Buttons() {
    cmdSave_ = Button("cmdSave", tr("&Save"));
    connect(cmdSave_, &QPushButton::clicked, this, &frmSetupComm::cmdSave_Click);
    cmdCancel_ = Button("cmdCancel", tr("&Cancel"));
    cmdCancel_->setFocusPolicy(Qt::TabFocus);
    connect(cmdCancel_, &QPushButton::clicked, this, &frmSetupComm::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdSave_);
    row->addWidget(cmdCancel_);
    return row;
}
