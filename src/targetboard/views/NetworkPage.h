#pragma once

#include "targetboard/views/SetupControls.h"
#include <QFrame>
#include <vector>

/// The page of the network addresses, fraTargetBoard(2).
class NetworkPage final : public QFrame {
public:
    /// Makes the page; its entries join `entries`, which must outlive it.
    explicit NetworkPage(NumericEntries& entries, QWidget* parent = nullptr);

    /// Brings the addresses up to date.
    void Show(const TargetBoardShown& shown);

private:
    std::vector<SetupControls> addresses_;
};
