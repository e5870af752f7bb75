#include "shell/frmNewFile.h"

#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/ProcessStart.h"
#include "base/RunTimeError.h"
#include "controls/ViewHelpers.h"
#include "link/RSComm.h"
#include "programset/BoardList.h"
#include "programset/NewProgramSet.h"
#include "programset/ProgramBoardIndex.h"
#include "programset/ToolCommand.h"
#include "session/Globals.h"
#include "shell/DirectoryList.h"
#include "shell/DriveBox.h"
#include "shell/FileList.h"
#include "shell/LabelledPane.h"
#include "shell/ProgramBrowser.h"
#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const QString pattern = QStringLiteral("*.hdn");
constexpr int maximised = 3;  // window style of a tool
constexpr int paneWidth = 26; // average characters
} // namespace

frmNewFile::frmNewFile(const SetFiles& context, ProcessStart& tools,
                       const ApplicationFolder& folder, QWidget* parent)
    : QDialog(parent), context_(context), tools_(tools), folder_(folder) {
    setObjectName(QStringLiteral("frmNewFile"));
    setModal(true);
    BuildForm();
    SetNewFileMode(NewFileMode::NewProgram);
    FormLoad();
}

void frmNewFile::SetNewFileMode(qint16 Action) {
    mode_ = Action;
    setWindowTitle(mode_ == NewFileMode::Upload ? tr("Name of the Uploaded Program")
                                                : tr("New Halden Program"));
}

void frmNewFile::BuildForm() {
    auto* panes = new QHBoxLayout;
    panes->addWidget(Places());
    panes->addWidget(Files());

    cmdOk_ = new QPushButton(tr("&OK"));
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdOk_->setDefault(true);
    connect(cmdOk_, &QPushButton::clicked, this, &frmNewFile::cmdOk_Click);
    cmdCancel_ = new QPushButton(tr("&Cancel"));
    cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));
    cmdCancel_->setAutoDefault(false);
    connect(cmdCancel_, &QPushButton::clicked, this, &frmNewFile::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk_);
    buttons->addWidget(cmdCancel_);

    auto* form = new QVBoxLayout(this);
    form->addLayout(panes, 1);
    form->addLayout(buttons);
    const QWidgetList order{txtNew_, filNew_, cboNew_, drvNew_, dirNew_, cmdOk_, cmdCancel_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QWidget* frmNewFile::Places() {
    drvNew_ = new DriveBox(context_.drives, context_.dialogs);
    dirNew_ = new DirectoryList;
    connect(drvNew_, &DriveBox::Changed, this, &frmNewFile::drvNew_Change);
    connect(dirNew_, &DirectoryList::Changed, this, &frmNewFile::dirNew_Change);
    auto* places = new QWidget;
    places->setMinimumWidth(fontMetrics().averageCharWidth() * paneWidth);
    auto* layout = new QVBoxLayout(places);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(LabelledPane(tr("D&rive:"), QStringLiteral("drvNew"), drvNew_));
    layout->addWidget(LabelledPane(tr("Fol&ders:"), QStringLiteral("dirNew"), dirNew_), 1);
    return places;
}

QWidget* frmNewFile::Files() {
    txtNew_ = new QLineEdit;
    txtNew_->installEventFilter(this);
    filNew_ = new FileList;
    cboNew_ = new QComboBox;
    cboNew_->setMaxVisibleItems(BoardList::length);
    connect(filNew_, &FileList::Clicked, this, &frmNewFile::filNew_Click);
    connect(filNew_, &FileList::EnterPressed, this, &frmNewFile::cmdOk_Click);
    connect(filNew_, &FileList::DoubleClicked, this, &frmNewFile::cmdOk_Click);
    auto* files = new QWidget;
    files->setMinimumWidth(fontMetrics().averageCharWidth() * paneWidth);
    auto* layout = new QVBoxLayout(files);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(LabelledPane(tr("&Name:"), QStringLiteral("txtNew"), txtNew_));
    layout->addWidget(LabelledPane(tr("&Programs:"), QStringLiteral("filNew"), filNew_), 1);
    layout->addWidget(LabelledPane(tr("Target &board:"), QStringLiteral("cboNew"), cboNew_));
    return files;
}

void frmNewFile::FormLoad() {
    cboNew_->addItems(BoardList::Names());
    cboNew_->setCurrentIndex(BoardList::firstPosition);
    txtNew_->setText(pattern);
    drvNew_->ShowDriveOf(context_.browser.Folder());
    dirNew_->SetPath(context_.browser.Folder());
    dirNew_Change();
    BackToName();
    CenterForm(*this);
}

void frmNewFile::drvNew_Change(const QString& root) {
    dirNew_->SetPath(root);
}

void frmNewFile::dirNew_Change() {
    filNew_->SetPath(dirNew_->Path());
    QDir::setCurrent(dirNew_->Path());
}

void frmNewFile::filNew_Click() {
    try {
        txtNew_->setText(filNew_->FileName());
        const QString path = context_.files.BuildPath(filNew_->Path(), filNew_->FileName());
        if (const auto position = BoardList::PositionToSelect(BoardIndexOfHdnFile(path)))
            cboNew_->setCurrentIndex(*position);
    } catch (const RunTimeError& error) {
        Report(error);
    }
}

void frmNewFile::cmdOk_Click() {
    bool made = false;
    try {
        made = CreateSet();
        if (!made) {
            BackToName();
            return;
        }
        hide();
        StartTool();
    } catch (const RunTimeError& error) {
        Report(error);
    }
    if (made)
        accept();
}

// The set counts as made even when its tool cannot be started afterwards.
bool frmNewFile::CreateSet() {
    NewProgramSet newSet(context_.dialogs, context_.operations);
    const NewProgramSet::Result result = newSet.Create(txtNew_->text(), filNew_->Path(),
                                                       BoardList::BoardAt(cboNew_->currentIndex()));
    txtNew_->setText(result.nameText);
    if (!result.hdnFile)
        return false;
    if (mode_ == NewFileMode::Upload)
        context_.link.SetInUploadMode(true);
    gHdnFile = *result.hdnFile;
    gNewFileAccepted = true;
    filNew_->Refresh();
    return true;
}

void frmNewFile::StartTool() {
    if (mode_ != NewFileMode::NewProgram)
        return;
    const QString command = ToolCommand(folder_.Root(), BoardList::BoardAt(cboNew_->currentIndex()),
                                        ToolStem(gHdnFile));
    if (!command.isEmpty())
        tools_.Shell(command, maximised);
}

void frmNewFile::BackToName() {
    txtNew_->setFocus();
    SelectAllText(*txtNew_);
}

void frmNewFile::reject() {
    context_.link.SetInUploadMode(false);
    gNewFileAccepted = false;
    QDialog::reject();
}

// A click would place the cursor after the focus has selected the text.
bool frmNewFile::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtNew_ && event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(txtNew_, &QLineEdit::selectAll, Qt::QueuedConnection);
    return QDialog::eventFilter(watched, event);
}

void frmNewFile::Report(const RunTimeError& error) {
    ShowErrorBox(context_.dialogs, error, NewProgramSet::errorTitle, MsgStyle::Critical);
}
