#pragma once

#include <QString>

class QLabel;
class QPlainTextEdit;
class QWidget;

/// Pieces that the pages of the target board interface are built from.

/// "txtSetup(3)": the object name of an element of a control array.
QString IndexedName(const char* name, int index);
/// A label of plain text, whatever stands in it; a text of the board may look like markup.
QLabel* PlainLabel(const QString& objectName, const QString& text = QString());
/// A label whose text wraps.
QLabel* WrappedLabel(const QString& objectName, const QString& text);
/// A box of text for reading, `lines` lines high, which wraps and scrolls and can be copied from.
QPlainTextEdit* ReadOnlyBox(const QString& objectName, const QString& accessibleName, int lines);
/// Sets the text of a box if it is another one, so that a selection in it stays.
void ShowText(QPlainTextEdit& box, const QString& text);
