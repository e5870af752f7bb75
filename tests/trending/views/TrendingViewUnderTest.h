#pragma once

#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "reports/views/PrinterSurface.h"
#include "support/LinkUnderTest.h"
#include "trending/views/frmTrending.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A main window that keeps what it was told.
class NotedHost final : public TrendingHost {
public:
    void ShowTrendCommands(bool shown) override { commandsShown = shown; }
    void PopUpTrendMenu(const QPoint&) override { ++popUps; }

    bool commandsShown = false;
    int popUps = 0;
};

/// A job runner that only notes what it was asked to run; `raises` is raised where it is set.
class NotedJobs final : public JobRunner {
public:
    void RunWaitJob(qint16 code) override {
        ran.push_back(code);
        if (raises != 0)
            throw RunTimeError(raises);
    }

    std::vector<qint16> ran;
    int raises = 0; ///< number of a run-time error
};

/// The trend view, active in a window of its own, with a link under test behind it.
class TrendingView : public testing::Test, protected LinkUnderTest {
protected:
    TrendingView()
        : loops([](const ViewLoop&) { return false; }),
          view({link, clock, dialogs, loops, jobs, printer, host}) {
        view.resize(1000, 600);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        view.Activate();
    }
    template <class Control>
    Control& Find(const char* name) {
        return *view.findChild<Control*>(QString::fromLatin1(name));
    }
    Grid& Samples() { return Find<Grid>("fgTrend"); }
    void TypeAddress(const QString& text) {
        QComboBox& entry = Find<QComboBox>("cboAddress");
        entry.setFocus();
        entry.setEditText(text);
        QTest::keyClick(&entry, Qt::Key_Return);
    }
    void GoOnlineAndAcquire() {
        GoOnline();
        EnterReadMode();
        port.AnswerLikeBoard(true);
        Find<QCheckBox>("chkAcquire").setChecked(true);
    }
    void Until(const std::function<bool()>& condition) {
        constexpr int mostTurns = 10'000'000;
        for (int turn = 0; turn < mostTurns && !condition(); ++turn)
            QCoreApplication::processEvents();
        EXPECT_TRUE(condition());
    }
    void Write(const char* name, const QByteArray& bytes) const {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    /// Opens a file of the folder in the view.
    void Open(const char* name) {
        dialogs.ExpectOpen(Path(name));
        view.OpenTrendData();
    }
    /// All cells of the grid of samples but the numbers, row by row.
    QStringList Cells() {
        QStringList cells;
        for (int row = 0; row < Samples().Rows(); ++row)
            cells << Samples().TextMatrix(row, 1) << Samples().TextMatrix(row, 2);
        return cells;
    }
    QString Path(const char* name) const { return files.filePath(QString::fromLatin1(name)); }

    QTemporaryDir files;
    ViewLoopRunner loops;
    NotedJobs jobs;
    SystemPrinter printer;
    NotedHost host;
    frmTrending view;
};
