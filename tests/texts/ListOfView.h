#pragma once

#include <QString>
#include <string>

class QWidget;

/// What parts a view from its list of the same name, one line each: texts that it shows and the
/// list does not have, and texts of the list that it does not show. Empty when there is nothing.
/// `list` names another list than that of the view's object name.
std::string DifferencesFromList(const QWidget& view, QString list = QString());
