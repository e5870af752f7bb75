#pragma once

#include "BoardUnderTest.h"
#include "targetboard/TargetBoardModel.h"
#include <gtest/gtest.h>

/// The model over a simulated board; the test gives the steps.
class ModelUnderTest : public BoardUnderTest {
public:
    explicit ModelUnderTest(int modelIndex)
        : BoardUnderTest(modelIndex), model(link, mode, clock, dialogs, folder) {}

    /// Opens the view on the set without a step of its loop.
    void Open() {
        model.Open(hdnFile);
        model.Start();
    }
    /// Opens it, goes online and reads the board once, set-up entries included.
    void OpenOnline() {
        Open();
        Turns(1);
    }
    /// Steps until the loop has rested so many times: once per poll of all entries, or offline.
    void Turns(int rests) {
        for (int steps = 0; rests > 0 && steps < 1000; ++steps)
            if (model.TakeStep() == ViewLoop::Step::Rest)
                --rests;
        EXPECT_EQ(rests, 0);
    }
    void Steps(int count) {
        for (; count > 0; --count)
            model.TakeStep();
    }
    const TargetBoardShown& Shown() const { return model.Shown(); }
    QString Label(int position) const { return Shown().lblTargetBoard[Index(position)]; }
    QString Text(int position) const { return Shown().txtTargetBoard[Index(position)]; }
    QString SetupText(int index) const { return Shown().txtSetup[Index(index)]; }

    TargetBoardModel model;

private:
    static std::size_t Index(int index) { return static_cast<std::size_t>(index); }
};
