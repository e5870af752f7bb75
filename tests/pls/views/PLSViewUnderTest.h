#pragma once

#include "../PLSUnderTest.h"
#include "pls/views/frmPLSView.h"
#include <functional>

class Grid;

/// The viewer on the set SET, which is gHdnFile. It is modal, so a test hands in what happens while
/// it is up.
class PLSViewUnderTest : public PLSUnderTest {
protected:
    PLSViewUnderTest();
    ~PLSViewUnderTest() override;

    /// Shows the sibling of this extension, runs `whileUp` once the view is active, closes it.
    void Show(const char* extension, const std::function<void()>& whileUp,
              QWidget* parent = nullptr);
    QWidget* Part(const QString& name);
    bool FrameIsShown(int index);
    /// Text of lblPCFValue of this index.
    QString Value(int index);
    QStringList Values(int first, int last);
    Grid& Channels();
    /// A row of the grid, its cells parted by "|".
    QString Row(int row);

    /// The .CHL file of a standard board with labels, several setpoints, a wrap-round and gaps.
    static QByteArray StandardCHL();

    frmPLSView* view_ = nullptr;
};
