#include "WholeProgram.h"

#include "controls/grid/Grid.h"
#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

namespace {
constexpr int patience = 10000; // milliseconds
} // namespace

WholeProgram::WholeProgram(int boardModel) : WholeWindow(boardModel) {
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { Look(); });
}

WholeProgram::~WholeProgram() {
    for (const ModalAct& act : acts_)
        ADD_FAILURE() << "this view never came up: " << act.view.toStdString();
}

void WholeProgram::SetUp() {
    WriteSetFile(QStringLiteral("UNIT.hdn"), "3\r\n");
    Start();
    GoToSets();
    ClickSet(QStringLiteral("UNIT.hdn"));
}

void WholeProgram::WhenUp(const char* view, std::function<void(QWidget&)> act,
                          std::function<bool()> ready) {
    acts_.push_back({QString::fromLatin1(view), std::move(act), std::move(ready)});
    waiting_.start();
    look_.start(0);
}

// The act may open the next modal view: it is done from the event queue, since a timer does not
// fire again inside its own handler.
void WholeProgram::Look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (acts_.empty()) {
        look_.stop();
    } else if (modal && modal->objectName() == acts_.front().view && acts_.front().ready()) {
        const ModalAct next = acts_.front();
        acts_.pop_front();
        waiting_.restart();
        QMetaObject::invokeMethod(
            modal, [modal, next] { next.act(*modal); }, Qt::QueuedConnection);
    } else if (modal && waiting_.elapsed() > patience) {
        ADD_FAILURE() << modal->objectName().toStdString() << " is up, not as expected";
        acts_.clear();
        modal->close();
    }
}

void WholeProgram::EnterRange(QWidget& view, int from, int to) {
    view.findChild<QAbstractButton*>(QStringLiteral("optRange(1)"))->click();
    view.findChild<QLineEdit*>(QStringLiteral("txtRange(0)"))->setText(QString::number(from));
    view.findChild<QLineEdit*>(QStringLiteral("txtRange(1)"))->setText(QString::number(to));
    ClickButton(view, "cmdOk");
}

void WholeProgram::ClickButton(QWidget& view, const char* name) {
    auto* button = view.findChild<QAbstractButton*>(QLatin1String(name));
    ASSERT_NE(button, nullptr) << name;
    button->click();
}

void WholeProgram::Press(const char* toolbarKey) {
    QTest::mouseClick(Find<QToolButton>(QLatin1String(toolbarKey)), Qt::LeftButton);
}

Grid& WholeProgram::Table() {
    return *Find<Grid>(QStringLiteral("fgStatus"));
}

QString WholeProgram::Cell(int row, int column) {
    return Table().TextMatrix(row, column);
}

void WholeProgram::TypeAddresses(const QStringList& addresses) {
    Table().SetCell(2, 1);
    for (const QString& address : addresses) {
        QTest::keyClicks(&Table(), address);
        QTest::keyClick(&Table(), Qt::Key_Return);
    }
}

void WholeProgram::Fill(int address, int count, int value) {
    for (int place = 0; place < count; ++place)
        board_.Poke(static_cast<std::uint16_t>(address + place), static_cast<std::uint8_t>(value));
}

QByteArray WholeProgram::Content(const QString& path) const {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}
