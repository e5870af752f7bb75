#pragma once

class QLineEdit;
class QWidget;
class ViewLoop;

/// Moves a dialog so that it stands in the middle of the main window, or of the screen where no
/// window is up, and wholly on the screen.
void CenterForm(QWidget& view);

/// Selects all text of an entry, from position 0 to its length.
void SelectAllText(QLineEdit& entry);

/// Whether a modal window other than the loop's own view is up: the test that ViewLoopRunner is
/// built with. A modal view that runs a loop derives from ViewLoop itself.
bool BlockedByModalView(const ViewLoop& loop);
