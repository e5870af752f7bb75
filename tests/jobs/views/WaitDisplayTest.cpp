#include "base/RunTimeError.h"
#include "jobs/JobsFixture.h"
#include "jobs/views/frmWaitDisplay.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "support/VirtualAlarms.h"
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {
QWidget* BusyView() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal && modal->objectName() == "frmWaitDisplay" ? modal : nullptr;
}

template <class T>
T* Child(const char* name) {
    return BusyView() ? BusyView()->findChild<T*>(QString::fromLatin1(name)) : nullptr;
}

// Counts how often a widget is painted.
class PaintCount final : public QObject {
public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class WaitDisplayView : public JobsFixture {
protected:
    WaitDisplayView() { backgroundUpdate.setInterval(500); }
    ~WaitDisplayView() override { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); }

    // Runs job `code` with this routine, which is given the view while it is up.
    void RunWith(qint16 code, WaitJobs::Routine routine) {
        jobs.Register(code, std::move(routine));
        runner.RunWaitJob(code);
    }

    WaitJobs jobs;
    QTimer backgroundUpdate;
    VirtualAlarms alarms{clock};
    WaitJobRunner runner{jobs, backgroundUpdate, clock, nullptr, alarms};
};
} // namespace

TEST_F(WaitDisplayView, ShowsTheMessageOfTheJobAndGoesAwayWithIt) {
    gXferMode = XferMode::Download;
    bool ran = false;
    RunWith(WaitJob::TransferData, [&](JobProgress&) {
        ran = true;
        ASSERT_TRUE(BusyView());
        EXPECT_TRUE(BusyView()->isVisible());
        EXPECT_EQ(Child<QLabel>("lblWaitDisplay")->text(),
                  "Downloading Target Board Data, Please Standby ...");
        EXPECT_TRUE(Child<QPushButton>("cmdCancel")->isEnabled());
        EXPECT_TRUE(Child<QProgressBar>("pbrWaitDisplay")->isVisible());
        EXPECT_FALSE(Child<QLabel>("lblSetpointRecall")->isVisible());
        EXPECT_EQ(gWaitJob, 4);
    });
    EXPECT_TRUE(ran);
}

TEST_F(WaitDisplayView, PrintingHasItsMessageAtHalfTheFrameAndNoBar) {
    RunWith(WaitJob::PrintTrendData, [&](JobProgress& shown) {
        shown.Yield();
        const auto* frame = Child<QFrame>("fraWaitDisplay");
        EXPECT_NEAR(Child<QLabel>("lblWaitDisplay")->y(), frame->height() / 2, 2);
        EXPECT_FALSE(Child<QPushButton>("cmdCancel")->isEnabled());
        EXPECT_FALSE(Child<QProgressBar>("pbrWaitDisplay")->isVisible());
    });
}

TEST_F(WaitDisplayView, StandsInTheMiddleOfTheMainWindow) {
    QWidget mainWindow;
    mainWindow.setGeometry(40, 40, 700, 500);
    mainWindow.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&mainWindow));
    WaitJobRunner overWindow(jobs, backgroundUpdate, clock, &mainWindow, alarms);
    jobs.Register(WaitJob::TransferData, [&](JobProgress&) {
        constexpr int frame = 2; // pixels; not known before the view is up
        const QPoint middle = mainWindow.frameGeometry().center();
        EXPECT_NEAR(BusyView()->frameGeometry().center().x(), middle.x(), frame);
        EXPECT_NEAR(BusyView()->frameGeometry().center().y(), middle.y(), frame);
    });
    overWindow.RunWaitJob(WaitJob::TransferData);
}

TEST_F(WaitDisplayView, MovingAPLSShowsTheSecondLineAndCannotBeCancelled) {
    for (const qint16 code : {6, 7, 8})
        RunWith(code, [code](JobProgress& shown) {
            EXPECT_EQ(Child<QLabel>("lblSetpointRecall")->isVisible(), code != 8);
            QTest::mouseClick(Child<QPushButton>("cmdCancel"), Qt::LeftButton);
            QTest::keyClick(BusyView(), Qt::Key_Escape);
            shown.Yield();
            EXPECT_FALSE(shown.Cancelled());
        });
}

TEST_F(WaitDisplayView, CancelAndEscapeAndTheCloseBoxSetTheFlagAndNothingElse) {
    const std::function<void()> ways[] = {
        [] { QTest::mouseClick(Child<QPushButton>("cmdCancel"), Qt::LeftButton); },
        [] { QTest::keyClick(BusyView(), Qt::Key_Escape); },
        [] { BusyView()->close(); },
    };
    for (const auto& way : ways)
        RunWith(WaitJob::TransferData, [&](JobProgress& shown) {
            EXPECT_FALSE(shown.Cancelled());
            way();
            EXPECT_TRUE(shown.Cancelled());
            ASSERT_TRUE(BusyView());
            EXPECT_TRUE(BusyView()->isVisible());
            shown.ClearCancel();
            EXPECT_FALSE(shown.Cancelled());
        });
}

TEST_F(WaitDisplayView, CodeWithoutARoutineShowsTheViewAndEnds) {
    backgroundUpdate.start();
    runner.RunWaitJob(0);
    runner.RunWaitJob(WaitJob::ReadNames);
    EXPECT_EQ(gWaitJob, 2);
    EXPECT_TRUE(backgroundUpdate.isActive());
}

TEST_F(WaitDisplayView, BackgroundUpdateStandsStillDuringTheJobAndGoesOnAfterIt) {
    backgroundUpdate.start();
    RunWith(WaitJob::TransferData,
            [&](JobProgress&) { EXPECT_FALSE(backgroundUpdate.isActive()); });
    EXPECT_TRUE(backgroundUpdate.isActive());
}

TEST_F(WaitDisplayView, FailureOfAJobPassesOnAndLeavesNothingBehind) {
    EXPECT_THROW(RunWith(WaitJob::ReadAddresses, [](JobProgress&) { throw RunTimeError(9); }),
                 RunTimeError);
    EXPECT_TRUE(backgroundUpdate.isActive());
    EXPECT_EQ(BusyView(), nullptr);
    RunWith(WaitJob::ReadAddresses, [](JobProgress&) {});
}

TEST_F(WaitDisplayView, JobWithinAJobIsRefused) {
    int refused = 0;
    RunWith(WaitJob::TransferData, [&](JobProgress&) {
        try {
            runner.RunWaitJob(WaitJob::ReadNames);
        } catch (const RunTimeError& error) {
            refused = error.Number();
        }
    });
    EXPECT_EQ(refused, ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(gWaitJob, 4);
}

TEST_F(WaitDisplayView, ShowsProgressTimePassedAndWhatRemains) {
    RunWith(WaitJob::TransferData, [&](JobProgress& shown) {
        shown.SetRange(0, 1000);
        shown.SetValue(600);
        shown.SetValue(700);
        shown.ShowMessage(QStringLiteral("Uploaded  1 from B699"));
        shown.ShowSecondLine(QStringLiteral("second"));
        alarms.Pass(10 * 1000);
        EXPECT_EQ(Child<QLabel>("lblWaitDisplay")->text(), "Uploaded  1 from B699");
        EXPECT_EQ(Child<QLabel>("lblSetpointRecall")->text(), "second");
        EXPECT_EQ(Child<QProgressBar>("pbrWaitDisplay")->value(), 700);
        EXPECT_EQ(Child<QProgressBar>("pbrWaitDisplay")->maximum(), 1000);
        EXPECT_EQ(Child<QLabel>("lblJobTime")->text(), "Time passed 0:10, about 0:30 left");
    });
}

TEST_F(WaitDisplayView, RepaintsTenTimesASecond) {
    PaintCount paints;
    RunWith(WaitJob::TransferData, [&](JobProgress& shown) {
        shown.Yield();
        Child<QLabel>("lblWaitDisplay")->installEventFilter(&paints);
        for (int passed = 0; passed < 4 * frmWaitDisplay::repaintInterval; ++passed) {
            shown.ShowMessage(QString::number(passed));
            alarms.Pass(1);
            shown.Yield();
        }
    });
    EXPECT_EQ(paints.count, 4);
}

TEST_F(WaitDisplayView, ClickOnCancelIsTakenWithinOneAddress) {
    jobs.Register(WaitJob::TransferData, [&](JobProgress& p) { transfer.TransferData(p); });
    SetTransfer(XferMode::Download, 51, 70, 219);
    BoardTakes(Run(70, std::vector<int>(150, 0)));
    QTimer user;
    int turns = 0;
    std::size_t sentAtClick = 0;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        if (++turns != 20)
            return;
        sentAtClick = port.Sent().size();
        QTest::mouseClick(Child<QPushButton>("cmdCancel"), Qt::LeftButton);
    });
    user.start(0);
    runner.RunWaitJob(WaitJob::TransferData);
    ASSERT_GT(sentAtClick, 2u);
    EXPECT_LT(sentAtClick, 2u + 150 * 3);
    EXPECT_EQ(port.Sent().size(), sentAtClick);
    EXPECT_EQ((port.Sent().size() - 2) % 3, 0u) << "never inside an address";
}
