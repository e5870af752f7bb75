#include "support/gui/WholeWindow.h"

#include "session/Globals.h"
#include "shell/frmMain.h"
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {
void ForgetGlobals() {
    gRSComm = nullptr;
    gCommControl = nullptr;
    gFSO = nullptr;
    gHdnFile.clear();
    gCurrentFolder.clear();
    gCurrentFile.clear();
    gCurrentFiles.clear();
    gCurrentDrive.clear();
    gNewFileAccepted = false;
    gPrintContext = PrintContext::Browser;
}

QString WriteFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
    return path;
}
} // namespace

QString ScriptedDrives::RootOf(const QString& path) const {
    QString longest;
    for (const QString& root : roots) {
        if (path.startsWith(root) && root.size() > longest.size())
            longest = root;
    }
    return longest;
}

Drive ScriptedDrives::At(const QString& root) const {
    Drive drive;
    drive.root = root;
    drive.letter = root;
    drive.isReady = !notReady.contains(root);
    drive.type = DriveType::Fixed;
    drive.availableSpace = availableSpace;
    return drive;
}

WholeWindow::WholeWindow(int boardModel)
    : board_(boardModel), startDirectory_(QDir::currentPath()) {
    ForgetGlobals();
    const QDir root(root_.path());
    root.mkpath(QStringLiteral("app/support"));
    root.mkpath(QStringLiteral("sets"));
    folder_ = std::make_unique<ApplicationFolder>(root.filePath(QStringLiteral("app")));
    WriteSetFile(QStringLiteral("PUMP.hdn"), "D\r\n");
    WriteSetFile(QStringLiteral("PUMP.lmn"), "ladder\r\n");
    WriteSetFile(QStringLiteral("PUMP.HEX"), "hex");
    WriteSetFile(QStringLiteral("PUMP.x07"), "user function");
    WriteSetFile(QStringLiteral("PUMP.bak"), "unknown");
    WriteSetFile(QStringLiteral("CAMS.hdn"), "7\r\n");
    WriteSetFile(QStringLiteral("CAMS.pcf"), "");
}

WholeWindow::~WholeWindow() {
    Stop();
    ForgetGlobals();
    QDir::setCurrent(startDirectory_);
}

void WholeWindow::Start() {
    application_ =
        std::make_unique<Application>(Platform{clock_, dialogs_, busy_, port_, *folder_, drives_,
                                               ports_, tools_, printer_, [this] { ++ended_; }});
    RunStartUp();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
}

void WholeWindow::RunStartUp() {
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, &hand, [] {
        QWidget* view = QApplication::activeModalWidget();
        if (view && view->objectName() == QLatin1String("frmSplash"))
            QTest::keyClick(view, Qt::Key_Space);
    });
    hand.start(0);
    application_->Start();
}

void WholeWindow::Stop() {
    application_.reset();
}

void WholeWindow::Tick() {
    auto* timer = Find<QTimer>(QStringLiteral("tmrBackgroungUpdate"));
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

void WholeWindow::SetFaultCode(int code) {
    constexpr std::uint16_t faultRegister = 8176;
    board_.Poke(faultRegister, static_cast<std::uint8_t>(code));
}

QAction* WholeWindow::Entry(const QString& name) {
    QAction* action = Window().Commands().Action(name);
    EXPECT_NE(action, nullptr) << name.toStdString();
    return action;
}

QString WholeWindow::Panel(int index) {
    return Find<QLabel>(QStringLiteral("sbrMain(%1)").arg(index))->text();
}

QString WholeWindow::WriteSetFile(const QString& name, const QByteArray& content) {
    return WriteFile(SetPath(name), content);
}

void WholeWindow::WriteRecentList(const QByteArrayList& lines) {
    WriteFile(AppPath(QStringLiteral("support/HD2000.dat")), lines.join("\r\n") + "\r\n");
}

QByteArrayList WholeWindow::RecentListOnDisk() const {
    QFile file(AppPath(QStringLiteral("support/HD2000.dat")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll().split('\n');
}

void WholeWindow::ForbidReading(const QString& path) {
    QFile::setPermissions(root_.path(), QFile::Permissions::fromInt(0x7755));
    QFile::setPermissions(path, {});
}

QString WholeWindow::AppPath(const QString& relative) const {
    return root_.filePath(QStringLiteral("app/") + relative);
}

QString WholeWindow::SetPath(const QString& name) const {
    return root_.filePath(QStringLiteral("sets/") + name);
}

void WholeWindow::GoToSets() {
    Window().Browser().RefreshFileList(SetPath(QStringLiteral("CAMS.hdn")));
}

void WholeWindow::ClickSet(const QString& fileName, Qt::MouseButton button) {
    auto* list = Find<QListView>(QStringLiteral("filFileList"));
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        if (index.data().toString() != fileName)
            continue;
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), button, Qt::NoModifier,
                          list->visualRect(index).center());
        return;
    }
    ADD_FAILURE() << "not in the list: " << fileName.toStdString();
}

QStringList WholeWindow::TreeTexts() {
    auto* tree = Find<QTreeWidget>(QStringLiteral("trvHDNList"));
    QStringList texts;
    for (QTreeWidgetItemIterator node(tree); *node; ++node)
        texts << (*node)->text(0);
    return texts;
}

void WholeWindow::DoubleClickNode(const QString& text) {
    auto* tree = Find<QTreeWidget>(QStringLiteral("trvHDNList"));
    const QList<QTreeWidgetItem*> found =
        tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << text.toStdString();
    const QPoint position = tree->visualItemRect(found.first()).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, position);
}
