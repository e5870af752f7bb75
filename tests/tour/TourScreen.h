#pragma once

#include <QString>
#include <QStringList>

/// The screen that the tour is seen on where there is no display: as large as "--screen=1920x1080"
/// among `arguments` says, else 1280 x 800, as small as the program is used on. The figures are
/// what a user has at any scale: at 200 per cent (QT_SCALE_FACTOR=2) the screen has four times as
/// many pixels. Its description is written to `folder`. To be called before the QApplication is
/// made; false where the option cannot be read or the description not be written.
bool ChooseTourScreen(const QStringList& arguments, const QString& folder);
