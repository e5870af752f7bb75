#pragma once

#include "pls/PLSViewTexts.h"
#include <QGroupBox>

class QGridLayout;
class ValueLabel;

/// A frame of captions and values of a configuration: lblPCFText and lblPCFValue of its rows.
class PLSConfigFrame final : public QGroupBox {
    Q_OBJECT
public:
    /// The frame of this index, R6500Config or StandardConfig.
    explicit PLSConfigFrame(PLSViewFrame frame, QWidget* parent = nullptr);

    /// Shows the values of a record.
    void Show(const PLSRecord& record);

private:
    void AddRow(QGridLayout& grid, int place, int column, int row);
    void AddR6500Rows(QGridLayout& grid);
    void AddStandardRows(QGridLayout& grid);

    std::array<ValueLabel*, pcfRows> lblPCFValue_{}; // null for the rows of the other layout
};
