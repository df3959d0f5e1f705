#pragma once
// The system's colour values on widgets: a value is 0xBBGGRR.

#include <QColor>

class QLabel;

namespace tessera {

QColor ColourOf(int value);

// Paints a label's text in the colour value.
void SetTextColour(QLabel* label, int value);

} // namespace tessera
