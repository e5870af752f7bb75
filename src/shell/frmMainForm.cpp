#include "controls/KeyedSplitter.h"
#include "shell/DirectoryList.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "shell/ProgramTreeView.h"
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

// How the browser is laid out. The lists stand at the left, above one another in two columns, and
// leave the rest of the window to the views that open over it.

namespace {
constexpr int listsWidth = 500; // pixels at first; the user drags it wider
constexpr int foldersWidth = 235;
constexpr int spacing = 6;

// Where the other views open: a shade darker than the window.
class FreeGround : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int shade = 107; // per cent
        QPainter(this).fillRect(rect(), palette().color(QPalette::Window).darker(shade));
    }
};

QSplitter* Splitter(Qt::Orientation orientation, const char* dividerName) {
    auto* splitter = new KeyedSplitter(orientation, QLatin1String(dividerName));
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(spacing);
    return splitter;
}
} // namespace

QWidget* frmMain::LabelledList(int label, const QString& caption, const QString& name,
                               QWidget* list) {
    auto* text = new QLabel(caption);
    text->setObjectName(QStringLiteral("lblLabel(%1)").arg(label));
    text->setBuddy(list);
    lblLabel_[static_cast<std::size_t>(label)] = text;
    list->setObjectName(name);
    list->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(text);
    layout->addWidget(list);
    return pane;
}

void frmMain::BuildForm() {
    setObjectName(QStringLiteral("frmMain"));
    setAccessibleName(QStringLiteral("Program browser"));
    drvDriveList_ = new QComboBox;
    drvDriveList_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    dirDirList_ = new DirectoryList;
    filFileList_ = new FileList;
    trvHDNList_ = new ProgramTreeView;

    auto* places = new QWidget;
    auto* placesLayout = new QVBoxLayout(places);
    placesLayout->setContentsMargins(0, 0, 0, 0);
    placesLayout->setSpacing(spacing);
    placesLayout->addWidget(
        LabelledList(0, QStringLiteral("D&rive:"), QStringLiteral("drvDriveList"), drvDriveList_));
    placesLayout->addWidget(
        LabelledList(1, QStringLiteral("Fol&ders:"), QStringLiteral("dirDirList"), dirDirList_), 1);

    QSplitter* upper = Splitter(Qt::Horizontal, "Divider between folders and programs");
    upper->addWidget(places);
    upper->addWidget(
        LabelledList(2, QStringLiteral("&Programs:"), QStringLiteral("filFileList"), filFileList_));
    upper->setSizes({foldersWidth, listsWidth - foldersWidth});
    QSplitter* left = Splitter(Qt::Vertical, "Divider above the program set");
    left->addWidget(upper);
    left->addWidget(LabelledList(3, QStringLiteral("Pro&gram set:"), QStringLiteral("trvHDNList"),
                                 trvHDNList_));
    left->setStretchFactor(0, 3);
    left->setStretchFactor(1, 2);

    auto* freeArea = new FreeGround;
    lists_ = Splitter(Qt::Horizontal, "Divider between the lists and the views");
    lists_->addWidget(left);
    lists_->addWidget(freeArea);
    lists_->setStretchFactor(0, 0);
    lists_->setStretchFactor(1, 1);
    lists_->setCollapsible(1, true);
    lists_->setSizes({listsWidth, listsWidth});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing, spacing, spacing, spacing);
    layout->addWidget(lists_);
}

void frmMain::ConnectLists() {
    connect(drvDriveList_, &QComboBox::activated, this, &frmMain::drvDriveList_Change);
    connect(dirDirList_, &DirectoryList::Changed, this, &frmMain::dirDirList_Change);
    connect(dirDirList_, &DirectoryList::Clicked, this, &frmMain::RefreshDirList);
    connect(filFileList_, &FileList::Clicked, this, &frmMain::filFileList_Click);
    connect(filFileList_, &FileList::PopupRequested, this, &frmMain::PopupRequested);
    connect(filFileList_, &FileList::EnterPressed, this, &frmMain::OpenRequested);
    connect(filFileList_, &FileList::DeletePressed, this, &frmMain::DeleteRequested);
    connect(filFileList_, &FileList::DoubleClicked, this, [this] {
        if (gFormLoaded)
            Q_EMIT FileDoubleClicked();
    });
    connect(trvHDNList_, &ProgramTreeView::NodeActivated, this, &frmMain::TreeNodeActivated);
}

QRect frmMain::FreeArea() const {
    const QWidget* freeArea = lists_->widget(1);
    return QRect(freeArea->mapTo(this, QPoint(0, 0)), freeArea->size());
}
