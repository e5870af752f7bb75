#include "TableUnderTest.h"

#include "session/Globals.h"
#include "statustable/TableBoards.h"
#include <gtest/gtest.h>
#include <QComboBox>
#include <QTest>

namespace {
constexpr double byteTime = 0.001; // seconds, about that of 9600 baud
} // namespace

void BoardAtPort::Output(const QByteArray& bytes) {
    for (const char byte : bytes) {
        ++bytesSent;
        const auto reply = board.Receive(static_cast<std::uint8_t>(byte));
        if (plugged && reply)
            input_.push_back(static_cast<char>(reply->value));
    }
}

QByteArray BoardAtPort::Input() {
    if (input_.empty())
        return QByteArray();
    const QByteArray byte(1, input_.front());
    input_.pop_front();
    return byte;
}

bool BoardAtPort::WaitForInput(double deadline) {
    if (input_.empty()) {
        clock_.AdvanceTo(deadline);
        return false;
    }
    clock_.Wait(byteTime);
    return true;
}

TableUnderTest::TableUnderTest(int model)
    : boardPort(clock, model), mode(link, boardPort, *this),
      loops([](const ViewLoop&) { return false; }, alarms) {
    gTableAddresses.clear();
    gTableTitle.clear();
    gViewNicNames = gViewDescriptions = false;
    view = std::make_unique<frmStatusTable>(frmStatusTable::Seams{
        link, mode, dialogs, loops, jobs, host, QStringLiteral("/application"), alarms});
    view->RegisterJobs(jobs.jobs);
    view->resize(900, 600);
    view->show();
    view->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
    view->Activate();
    view->StatusGrid().setFocus();
}

TableUnderTest::~TableUnderTest() {
    view.reset();
}

void TableUnderTest::Connect() {
    mode.GoOnline();
    ASSERT_TRUE(link.OnlineMode());
    loops.Wake();
}

void TableUnderTest::Until(const std::function<bool()>& condition) {
    for (int passed = 0; !condition() && passed < 5000; ++passed)
        LetAMomentPass();
    EXPECT_TRUE(condition());
}

void TableUnderTest::RunPasses() {
    for (int turn = 0; turn < 100; ++turn) {
        loops.Wake();
        LetAMomentPass();
    }
}

void TableUnderTest::LetAMomentPass() {
    alarms.Pass(1);
    QCoreApplication::processEvents();
}

void TableUnderTest::Type(const QString& keys) {
    for (const QChar key : keys)
        QTest::keyClick(&view->StatusGrid(), key.toLatin1());
}

void TableUnderTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&view->StatusGrid(), key, modifiers);
}

void TableUnderTest::ClickCell(int row, int col) {
    Grid& grid = view->StatusGrid();
    const QRect cell = grid.visualRect(grid.model()->index(row - grid.FixedRows(), col));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

void TableUnderTest::Fill(const QStringList& addresses) {
    for (int i = 0; i < addresses.size(); ++i)
        view->StatusGrid().SetTextMatrix(i + 2, 1, addresses[i]);
}

void TableUnderTest::ChooseBoard(qint16 board) {
    Find<QComboBox>("cboTargetBoard").setCurrentIndex(*ListEntryOfBoard(board));
}

QStringList TableUnderTest::Column1() const {
    QStringList texts;
    for (int row = 2; row < view->StatusGrid().Rows(); ++row)
        texts += Cell(row, 1);
    return texts;
}
