#include "shell/frmCopyFile.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "controls/ViewHelpers.h"
#include "session/Globals.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramFileDialog.h"
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace {
constexpr int folderWidth = 56; // average characters

// A path that gives up its middle where there is no room for it.
class PathLabel : public QLabel {
protected:
    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, shown);
    }
};
} // namespace

frmCopyFile::frmCopyFile(const SetFiles& context, QWidget* parent)
    : QDialog(parent), context_(context) {
    setObjectName(QStringLiteral("frmCopyFile"));
    setWindowTitle(tr("Copy Halden Program"));
    setModal(true);
    BuildForm();
    FormLoad();
}

void frmCopyFile::BuildForm() {
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    source_ =
        AddEnd(*grid, {tr("From folder:"), QStringLiteral("lblSource"), QStringLiteral("txtSource"),
                       QStringLiteral("cmdBrowseSource"), tr("&Browse...")});
    grid->setRowMinimumHeight(grid->rowCount(), fontMetrics().height() / 2);
    destination_ = AddEnd(*grid, {tr("To folder:"), QStringLiteral("lblDestination"),
                                  QStringLiteral("txtDestination"),
                                  QStringLiteral("cmdDestination"), tr("&Destination...")});
    connect(source_.browse, &QPushButton::clicked, this, &frmCopyFile::cmdBrowseSource_Click);
    connect(destination_.browse, &QPushButton::clicked, this, &frmCopyFile::cmdDestination_Click);

    lblCopyStatus_ = new QLabel;
    lblCopyStatus_->setObjectName(QStringLiteral("lblCopyStatus"));
    lblCopyStatus_->setTextFormat(Qt::PlainText);
    QSizePolicy keepsItsPlace = lblCopyStatus_->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    lblCopyStatus_->setSizePolicy(keepsItsPlace);
    lblCopyStatus_->hide();

    cmdCopy_ = Button(QStringLiteral("cmdCopy"), tr("Co&py"));
    cmdCopy_->setDefault(true);
    connect(cmdCopy_, &QPushButton::clicked, this, &frmCopyFile::cmdCopy_Click);
    cmdCancel_ = Button(QStringLiteral("cmdCancel"), tr("&Cancel"));
    connect(cmdCancel_, &QPushButton::clicked, this, &frmCopyFile::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCopy_);
    buttons->addWidget(cmdCancel_);

    auto* form = new QVBoxLayout(this);
    form->addLayout(grid);
    form->addWidget(lblCopyStatus_);
    form->addStretch();
    form->addLayout(buttons);
    const QWidgetList order{source_.name,        source_.browse, destination_.name,
                            destination_.browse, cmdCopy_,       cmdCancel_};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QPushButton* frmCopyFile::Button(const QString& name, const QString& caption) {
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

// Two rows: the folder below its caption's line, then the name with the button beside it.
frmCopyFile::End frmCopyFile::AddEnd(QGridLayout& grid, const EndNames& names) {
    const int row = grid.rowCount();
    auto* caption = new QLabel(names.caption);
    caption->setObjectName(names.label + QStringLiteral("(0)"));
    End end;
    end.folder = new PathLabel;
    end.folder->setObjectName(names.label + QStringLiteral("(1)"));
    end.folder->setTextFormat(Qt::PlainText);
    end.folder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    end.folder->setMinimumWidth(fontMetrics().averageCharWidth() * folderWidth);
    end.name = new QLineEdit;
    end.name->setObjectName(names.text);
    auto* nameCaption = new QLabel(tr("Program:"));
    end.name->setAccessibleName(QString(names.caption).remove(u':') + tr(", program"));
    end.browse = Button(names.button, names.buttonCaption);
    grid.addWidget(caption, row, 0);
    grid.addWidget(end.folder, row, 1, 1, 2);
    grid.addWidget(nameCaption, row + 1, 0);
    grid.addWidget(end.name, row + 1, 1);
    grid.addWidget(end.browse, row + 1, 2);
    return end;
}

void frmCopyFile::FormLoad() {
    lastSource_ = context_.browser.SelectedProgramPath();
    if (context_.files.FileExists(lastSource_)) {
        lastDestination_ = lastSource_;
        Show(source_, lastSource_);
        Show(destination_, lastSource_);
    } else {
        source_.name->setText(QStringLiteral("*.hdn"));
    }
    destination_.name->setFocus();
    SelectAllText(*destination_.name);
    CenterForm(*this);
}

void frmCopyFile::Show(const End& end, const QString& path) {
    const QString folder = context_.files.GetParentFolderName(path);
    end.folder->setText(folder);
    end.folder->setToolTip(folder);
    end.name->setText(context_.files.GetFileName(path));
}

// Starts at the file, or in its folder as long as the file is not there; in the folder of the
// browser before there is either.
FileDialogRequest frmCopyFile::DialogFrom(const QString& path) const {
    const QString folder = context_.files.GetParentFolderName(path);
    const bool hasFolder = context_.files.FolderExists(folder);
    return ProgramFileDialog(context_.files, path, hasFolder ? folder : context_.browser.Folder());
}

void frmCopyFile::cmdBrowseSource_Click() {
    try {
        const QString path = context_.dialogs.ShowOpen(DialogFrom(lastSource_));
        lastSource_ = path;
        Show(source_, path);
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, CopyProgramSet::errorTitle, MsgStyle::Critical);
    }
}

// A save dialog, because the copy need not exist yet; whether one is replaced is asked later.
void frmCopyFile::cmdDestination_Click() {
    try {
        const QString path = context_.dialogs.ShowSave(DialogFrom(lastDestination_));
        lastDestination_ = path;
        Show(destination_, path);
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, CopyProgramSet::errorTitle, MsgStyle::Critical);
    }
}

CopyProgramSet::Request frmCopyFile::Filled() const {
    return {source_.folder->text(), source_.name->text(), destination_.folder->text(),
            destination_.name->text()};
}

// After an error the view stays as it is: the status still names the file that failed. Nothing
// runs any more, so that Cancel closes it.
void frmCopyFile::cmdCopy_Click() {
    stopped_ = false;
    copying_ = true;
    bool failed = false;
    CopyProgramSet copy(context_.dialogs, context_.operations, context_.drives);
    try {
        if (copy.Begin(Filled()))
            CopyFiles(copy);
    } catch (const RunTimeError& error) {
        failed = true;
        ShowErrorBox(context_.dialogs, error, CopyProgramSet::errorTitle, MsgStyle::Critical);
    }
    copying_ = false;
    stopped_ = true;
    if (!failed)
        ShowIdle();
    RefreshBrowser();
}

void frmCopyFile::CopyFiles(CopyProgramSet& copy) {
    ShowCopying();
    while (copy.MoreFiles()) {
        DoEvents();
        if (stopped_)
            return;
        lblCopyStatus_->setText(copy.StatusText());
        lblCopyStatus_->repaint();
        copy.CopyNextFile();
    }
    if (const std::optional<QString> written = copy.Destination(); written && !stopped_) {
        lastDestination_ = *written;
        Show(destination_, *written);
    }
}

void frmCopyFile::ShowCopying() {
    cmdCancel_->setText(tr("&Cancel"));
    cmdCancel_->setFocus();
    cmdCopy_->setEnabled(false);
    lblCopyStatus_->clear();
    lblCopyStatus_->show();
    DoEvents();
}

void frmCopyFile::ShowIdle() {
    cmdCancel_->setText(tr("&Ok"));
    cmdCopy_->setEnabled(true);
    lblCopyStatus_->hide();
}

void frmCopyFile::RefreshBrowser() {
    context_.browser.dirDirList_Change();
    context_.browser.RefreshFileList(gHdnFile);
    DoEvents();
}

void frmCopyFile::reject() {
    if (stopped_ && !copying_)
        QDialog::reject();
    stopped_ = true;
}
