#pragma once

#include <QObject>

class ChannelDisplay;
class NumericEntries;
class QKeyEvent;
class TimingScreen;

/// Keys, clicks and moves in the grid of the timing view.
class GridEvents final : public QObject {
    Q_OBJECT
public:
    /// Takes over keys, clicks, moves and the context menu of the grid. All but `parent`, which
    /// may be null, must outlive the object.
    GridEvents(TimingScreen& screen, ChannelDisplay& channels, NumericEntries& entries,
               QObject* parent);

    /// Forgets that Escape was pressed once.
    void ClearEscape() { escapePressed_ = false; }
    /// Puts the selected cells on the clipboard as text: tabs between cells, line ends between
    /// rows.
    void CopyClip();

private:
    void Selected(void (ChannelDisplay::*show)());
    bool KeyPressed(const QKeyEvent& event);
    void EscapePressed();
    void BeginNewOn(const QString& character);
    void PopUpMenu(const QPoint& place);

    TimingScreen& screen_;
    ChannelDisplay& channels_;
    NumericEntries& entries_;
    bool escapePressed_ = false;
};
