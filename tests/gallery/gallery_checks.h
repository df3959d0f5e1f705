#pragma once
// What the gallery asks of every screen it renders, in every look: it fits the smallest display,
// a screen reader meets every control by the name it shows, an access key presses one button,
// and on a dark ground the coloured words still read.

#include <QStringList>

class QWidget;

namespace tessera {

// The looks in the order the command line names them: "plain", "scale2", "dark".
enum class GalleryLook { Plain, Scale2, Dark };

// The faults found on a shown screen, each a line naming the control.
QStringList ScreenFaults(const QWidget& screen, GalleryLook look);

} // namespace tessera
