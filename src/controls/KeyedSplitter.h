#pragma once

#include <QSplitter>
#include <QString>

/// A splitter whose dividers can be moved without a mouse: FocusNextDivider gives one the focus,
/// the arrow keys move it, Home and End move it as far as it goes, Return and Escape go back to
/// where the user was. Dividers stand outside the tab order.
class KeyedSplitter final : public QSplitter {
    Q_OBJECT
public:
    /// `dividerName` tells accessibility tools what a divider parts: "Lists and page".
    KeyedSplitter(Qt::Orientation orientation, QString dividerName, QWidget* parent = nullptr);

    /// What one arrow key moves a divider, in pixels.
    static constexpr int step = 16;

protected:
    QSplitterHandle* createHandle() override;

private:
    QString dividerName_;
};

/// Gives the focus to the next divider that can be seen in `window`, after the one that has it now;
/// behind the last one to the first again. Nothing happens where there is none.
void FocusNextDivider(QWidget& window);
