#pragma once

#include <QString>

class QLabel;
class QWidget;
struct SystemFacts;

/// Label of plain text under its object name.
QLabel* TextLabel(const char* name, const QString& text);
/// Label with the program's picture, `size` pixels wide and high, sharp on every screen.
QLabel* LogoLabel(const char* name, int size, const QWidget& view);
/// Sets the text of a label as big as `percent` of the ordinary and, if asked for, bold.
void EmphasiseLabel(QLabel& label, int percent, bool bold);

/// Adds what only a program with windows knows: window system, style and screens.
void AddWindowFacts(SystemFacts& facts);
