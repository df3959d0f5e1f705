#pragma once
// What every screen owes a keyboard and a screen reader user, as data a test can compare.

#include <QStringList>

class QWidget;

namespace tessera {

// The object names of the screen's named controls that a screen reader would meet nameless.
// Controls are the widgets with an object name; the parts Qt names itself ("qt_...") are not.
QStringList ControlsWithoutNames(const QWidget& screen);

} // namespace tessera
