#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/grid/Grid.h"
#include "controls/ViewHelpers.h"
#include "session/Globals.h"
#include "support/NoProgress.h"
#include <QApplication>
#include <QElapsedTimer>
#include <QToolButton>

namespace {
constexpr int attention = 0xFF;
constexpr int readOffset = 0x28;

class YieldingProgress final : public NoProgress {
public:
    void Yield() override { QCoreApplication::processEvents(); }
};
} // namespace

void PlainJobRunner::RunWaitJob(qint16 JobCode) {
    const ViewLoopHold hold;
    YieldingProgress progress;
    ran.push_back(JobCode);
    jobs_.Run(JobCode, progress);
}

TimingUnderTest::TimingUnderTest(int model)
    : folder(files.MakeFolder("app")),
      hdnFile(files.Write("CAMS.hdn", QByteArray(1, static_cast<char>(model)) + "\r\n")),
      board(model), line(board), port(clock, line), link(prompts, clock, busy, folder),
      mode(link, port, display), plsJobs(link, prompts), runner(jobs), loops(BlockedByModalView),
      view({link, mode, prompts, loops, runner, [this] { return hdnFile; }}) {
    line.SetBaud(0);
    plsJobs.Register(jobs);
    plsJobs.SetTimingBoard([this] { return std::optional<qint16>(view.SelectedBoard()); });
    gHdnFile = hdnFile;
    gPLSSnapshot = PLSRecord();
}

TimingUnderTest::~TimingUnderTest() {
    view.close();
    gHdnFile.clear();
    gPLS = PLSRecord();
    gPLSSnapshot = PLSRecord();
}

void TimingUnderTest::Open() {
    view.show();
    QApplication::setActiveWindow(&view);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    view.Activate();
    Until([this] { return Timing(1)->text() == "-"; });
}

void TimingUnderTest::GoOnline() {
    mode.GoOnline();
    ASSERT_FALSE(link.CommError());
    Until([this] { return view.gFirstPassOnline(); });
    Rounds();
}

void TimingUnderTest::OpenOnline() {
    Open();
    GoOnline();
}

// No test waits: a loop that rests is woken, and events are taken as they come.
void TimingUnderTest::Until(const std::function<bool()>& test) {
    QElapsedTimer passed;
    passed.start();
    while (!test()) {
        ASSERT_LT(passed.elapsed(), 5000);
        loops.Wake();
        QCoreApplication::processEvents();
    }
}

void TimingUnderTest::Rounds() {
    const int before = Sent(readOffset);
    Until([&] { return Sent(readOffset) >= before + 3; });
}

int TimingUnderTest::Sent(int command) const {
    int count = 0;
    int last = 0;
    for (const haldenboard::LoggedByte& byte : line.Log()) {
        if (!byte.toBoard)
            continue;
        count += last == attention && byte.value == command ? 1 : 0;
        last = byte.value;
    }
    return count;
}

void TimingUnderTest::SetSpeed(int rpm) {
    board.SetSpeed(rpm);
}

void TimingUnderTest::Program(qint16 channel, std::initializer_list<Setpoint> setpoints) {
    for (const Setpoint setpoint : setpoints)
        ASSERT_TRUE(link.SingleSetpoint(channel, setpoint.on, setpoint.off, false));
}

void TimingUnderTest::Click(const char* button) {
    QTest::mouseClick(Button(button), Qt::LeftButton);
}

void TimingUnderTest::ClickOption(const char* name, int index) {
    QRadioButton* option = Option(name, index);
    QTest::mouseClick(option, Qt::LeftButton, Qt::NoModifier, QPoint(8, option->height() / 2));
}

void TimingUnderTest::ClickCheck(const char* name) {
    auto* box = Find<QCheckBox>(name);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

void TimingUnderTest::ClickArrow(const char* family, int index, const char* arrow) {
    auto* arrows = Find<QWidget>(QString("%1(%2)").arg(family).arg(index));
    QTest::mouseClick(arrows->findChild<QToolButton*>(arrow), Qt::LeftButton);
}

void TimingUnderTest::ClickCell(int row, int col) {
    Grid& grid = view.ChannelGrid();
    grid.scrollTo(grid.model()->index(row - grid.FixedRows(), col));
    const QRect cell = grid.visualRect(grid.model()->index(row - grid.FixedRows(), col));
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

void TimingUnderTest::Type(QLineEdit* entry, const QString& text) {
    if (!entry->hasFocus())
        QTest::mouseClick(entry, Qt::LeftButton);
    QCoreApplication::processEvents(); // a click selects when it is over
    QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(entry, Qt::Key_Delete);
    QTest::keyClicks(entry, text);
    QTest::keyClick(entry, Qt::Key_Tab);
    QCoreApplication::processEvents();
}

void TimingUnderTest::TypeSetpoint(int on, int off) {
    Type(Timing(2), QString::number(on));
    Type(Timing(3), QString::number(off));
}

QStringList TimingUnderTest::Live() {
    QStringList names;
    for (const QWidget* control : view.findChildren<QWidget*>()) {
        const bool wanted = qobject_cast<const QLineEdit*>(control) ||
                            qobject_cast<const QAbstractButton*>(control) ||
                            qobject_cast<const EntryUpDown*>(control) ||
                            qobject_cast<const Grid*>(control);
        const bool named = !control->objectName().isEmpty() && control->objectName() != "up" &&
                           control->objectName() != "down" && control->objectName() != "cmdDefault";
        const bool ours = !control->objectName().startsWith("qt_");
        if (wanted && named && ours && control->isVisible() && control->isEnabled())
            names << control->objectName();
    }
    return names;
}

void TimingUnderTest::CutLine() {
    line.Faults().SetSilence(true);
    dialogs.ExpectBoxTitled("WARNING - Communication Error!", MsgAnswer::Cancel);
}
