#pragma once

#include "WholeProgram.h"

class Grid;

/// Every view of the program in the states that show other controls, opened as a user opens it.
class ViewsUnderTest : public WholeProgram {
public:
    /// Looks at a view that is up and active.
    using Look = std::function<void(QWidget& view)>;

    // Views in the main window.
    void Browser(const Look& look);
    void StatusTable(const Look& look);
    void Trending(const Look& look);
    void TimingOffline(const Look& look);
    void TimingTurning(const Look& look);
    void TimingStopped(const Look& look);
    void CompileErrors(const Look& look);
    void SearchResults(const Look& look);

    // Modal views of the sets and of the line.
    void CopyFile(const Look& look);
    void NewFile(const Look& look);
    void Documentation(const Look& look);
    void SetupComm(const Look& look);
    void ProgramTransfer(const Look& look);
    void TransferRange(const Look& look);
    void Busy(const Look& look);
    void TrendPrint(const Look& look);

    // The target board interface, page by page.
    void BoardFaults(const Look& look);
    void BoardIdent(const Look& look);
    void BoardNetwork(const Look& look);
    void BoardClock(const Look& look);
    void BoardOffline(const Look& look);

    // Files of a limit switch.
    void PLSConfiguration(const Look& look);
    void PLSChannels(const Look& look);

    // About and help.
    void About(const Look& look);
    void SysInfo(const Look& look);
    void Help(const Look& look);
    void HelpSearch(const Look& look);

    // Prompts as the user meets them.
    void QuestionBox(const Look& look);
    void InputBox(const Look& look);

protected:
    explicit ViewsUnderTest(int boardModel) : WholeProgram(boardModel), boardModel_(boardModel) {}

    /// Turns the event loop and the view loops until `test` holds.
    void Until(const std::function<bool()>& test);

private:
    void LookAtChild(const char* name, const Look& look);
    void LookAtModal(const char* name, const Look& look);
    void ShowTiming();
    void LookAtBoardPage(int page, const Look& look);
    void LookAtPLSFile(const QString& node, const Look& look);
    QWidget* ShowHelp();

    const int boardModel_;
};

/// One row of the table of views.
struct ViewCase {
    const char* name;
    int boardModel; ///< of the simulated board on the line
    void (ViewsUnderTest::*show)(const ViewsUnderTest::Look&);
};

/// All of them.
const std::vector<ViewCase>& ViewCases();

/// A test that is run with every view.
class EveryView : public ViewsUnderTest, public testing::WithParamInterface<ViewCase> {
protected:
    EveryView() : ViewsUnderTest(GetParam().boardModel) {}

    /// Opens the view, looks at it once and closes it.
    void LookAtView(const Look& look) {
        int looked = 0;
        (this->*GetParam().show)([&](QWidget& view) {
            ++looked;
            look(view);
        });
        EXPECT_EQ(looked, 1);
    }
};
