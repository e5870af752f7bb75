#pragma once

#include "targetboard/views/SetupControls.h"
#include <QFrame>
#include <vector>

/// The page of the network addresses, fraTargetBoard(2).
class NetworkPage final : public QFrame {
public:
    explicit NetworkPage(NumericEntries& entries, QWidget* parent = nullptr);

    void Show(const TargetBoardShown& shown);

private:
    std::vector<SetupControls> addresses_;
};
