#pragma once

#include "app/Application.h"
#include "base/ApplicationFolder.h"
#include "base/Drives.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "reports/views/PrinterSurface.h"
#include "support/gui/WatchedPort.h"
#include "support/RecordedStarts.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedSerialPorts.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <memory>
#include <QSet>
#include <QTemporaryDir>

class QAction;
class QModelIndex;

/// Drives that a test decides on.
class ScriptedDrives final : public Drives {
public:
    QStringList Roots() const override { return roots; }
    QString RootOf(const QString& path) const override;
    Drive At(const QString& root) const override;

    QStringList roots = {QStringLiteral("/")};
    QSet<QString> notReady;
    qint64 availableSpace = 1000000000; ///< bytes, on every drive
};

/// The whole program on doubles: a temporary application folder with a support folder, a folder of
/// sample program sets, the simulated board on the line, scripted prompts, virtual time. No tick
/// comes by itself within the half second that a test may take; Tick() gives one.
class WholeWindow : public testing::Test {
protected:
    /// `boardModel` is what the simulated board is, by its board index.
    explicit WholeWindow(int boardModel = haldenboard::SimulatedBoard::DefaultModel);
    ~WholeWindow() override;

    /// Builds the application and runs its start-up.
    void Start();
    /// Runs the start-up of the application that is built, with a hand that presses a key at the
    /// splash.
    void RunStartUp();
    /// Ends the application; Start may follow.
    void Stop();

    frmMDIMain& Window() { return application_->MainWindow(); }
    RSComm& Link() { return application_->Link(); }
    /// One tick of tmrBackgroungUpdate, as though its time had come.
    void Tick();

    /// Puts a code into the board's fault register.
    void SetFaultCode(int code);

    /// The child of the main window of this object name; fails the test if there is none.
    template <typename T>
    T* Find(const QString& name) {
        T* child = Window().findChild<T*>(name);
        EXPECT_NE(child, nullptr) << name.toStdString();
        return child;
    }
    /// The action of a menu entry or toolbar button.
    QAction* Entry(const QString& name);
    QString Panel(int index);

    /// Writes a file below the folder of the program sets and returns its path.
    QString WriteSetFile(const QString& name, const QByteArray& content);
    /// Writes HD2000.dat with these lines.
    void WriteRecentList(const QByteArrayList& lines);
    QByteArrayList RecentListOnDisk() const;
    /// Lets every user into the temporary folder, and nobody read this file.
    void ForbidReading(const QString& path);
    QString AppPath(const QString& relative) const;
    QString SetPath(const QString& name) const;

    /// Clicks the entry of this name in filFileList with the mouse.
    void ClickSet(const QString& fileName, Qt::MouseButton button = Qt::LeftButton);
    /// Texts of the tree: the root, then its children.
    QStringList TreeTexts();
    /// Double-clicks the node of this text.
    void DoubleClickNode(const QString& text);
    /// Moves the browser to the folder of the program sets.
    void GoToSets();

    QTemporaryDir root_;
    VirtualClock clock_;
    ScriptedDialogs dialogs_;
    haldenboard::SimulatedBoard board_;
    haldenboard::Line line_{board_};
    WatchedPort port_{clock_, line_};
    NoBusyDisplay busy_;
    ScriptedDrives drives_;
    ScriptedSerialPorts ports_;
    RecordedStarts tools_;
    SystemPrinter printer_; // a test chooses a PDF file through dialogs_
    std::unique_ptr<ApplicationFolder> folder_;
    std::unique_ptr<Application> application_;
    int ended_ = 0; ///< how often the program was ended

private:
    QString startDirectory_;
};
