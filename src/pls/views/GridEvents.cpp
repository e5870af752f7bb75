#include "pls/views/GridEvents.h"

#include "controls/entry/NumericEntries.h"
#include "controls/grid/Grid.h"
#include "pls/views/ChannelDisplay.h"
#include "pls/views/TimingScreen.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <utility>

namespace {
// A key that types something: no command of a menu and no move.
bool TypesCharacter(const QKeyEvent& event) {
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return !command && !event.text().isEmpty() && event.text()[0].isPrint();
}
} // namespace

GridEvents::GridEvents(TimingScreen& screen, ChannelDisplay& channels, NumericEntries& entries,
                       QObject* parent)
    : QObject(parent), screen_(screen), channels_(channels), entries_(entries) {
    Grid& grid = *screen_.Form().fgPLSChannels;
    connect(&grid, &Grid::Click, this, [this] { Selected(&ChannelDisplay::SelectGridRow); });
    connect(&grid, &Grid::EnterCell, this, [this] { Selected(&ChannelDisplay::FollowRow); });
    connect(&grid, &Grid::Resized, this, [this] { channels_.FitRows(); });
    connect(&grid, &QWidget::customContextMenuRequested, this, &GridEvents::PopUpMenu);
    grid.SetKeyHandler([this](const QKeyEvent& event) { return KeyPressed(event); });
}

// A click that left an entry with a refused text does not count.
void GridEvents::Selected(void (ChannelDisplay::*show)()) {
    ClearEscape();
    if (!entries_.Refuses())
        (channels_.*show)();
}

bool GridEvents::KeyPressed(const QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) {
        CopyClip();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        ClearEscape();
        return true;
    case Qt::Key_Escape:
        EscapePressed();
        return true;
    case Qt::Key_Backspace:
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return false;
    default:
        break;
    }
    if (!TypesCharacter(event))
        return false;
    BeginNewOn(event.text());
    return true;
}

void GridEvents::EscapePressed() {
    if (std::exchange(escapePressed_, !escapePressed_))
        screen_.FocusDefault();
    else
        channels_.RestoreSelected();
}

// The entry selects its text when it gets the focus; the next key is to go behind it.
void GridEvents::BeginNewOn(const QString& character) {
    ClearEscape();
    QLineEdit& box = *screen_.Form().Timing(TimingEntryIndex::On).box;
    box.setText(character);
    box.setFocus();
    box.end(false);
}

void GridEvents::CopyClip() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(screen_.Form().fgPLSChannels->Clip());
}

void GridEvents::PopUpMenu(const QPoint& place) {
    Grid& grid = *screen_.Form().fgPLSChannels;
    auto* menu = new QMenu(&grid);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(QStringLiteral("&Copy"), QKeySequence::Copy, this, &GridEvents::CopyClip);
    menu->popup(grid.viewport()->mapToGlobal(place));
}
