#pragma once

#include <QStringList>
#include <vector>

/// One text of a list, as it stands on the screen.
struct ListedText {
    QString place; ///< the control, or what of the program shows it
    QString kind;  ///< "caption", "message", ...; see lists/README.md
    QString title; ///< of a message: the title of its box
    QString text;  ///< variable places are a VariablePlace each
    QString note;  ///< why a message has no test that shows it; empty where it has one
};

/// Stands in a text where a number, a name or another text is put in.
constexpr QChar variablePlace{0x1};

/// A list of tests/texts/lists by its name, "frmTiming" or "messages". Fails the test if there is
/// none or a line of it makes no sense.
std::vector<ListedText> ReadTextList(const QString& name);
/// Names of all lists, sorted.
QStringList TextListNames();

/// Whether a text is the listed one: letter for letter, and at least one character at each
/// variable place.
bool IsListedText(const QString& text, const QString& listed);

/// A text on one line, as the lists write it: for what a failing test prints.
std::string Printed(const QString& text);
