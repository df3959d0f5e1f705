#pragma once
// The system's colour values on widgets: a value is 0xBBGGRR. On a dark ground (a dark desktop
// theme, or the score's board) a colour that carries meaning is lightened until it reads.

#include <QColor>

class QLabel;

namespace tessera {

QColor ColourOf(int value);

// How far apart two colours stand for the eye: 1 (the same) to 21 (black on white).
double ContrastRatio(const QColor& a, const QColor& b);

// The ink itself on a light ground; on a dark ground where it would not read (a contrast
// under 4.5 to 1), the same hue lightened just enough.
QColor ReadableOn(const QColor& ink, const QColor& ground);

// Paints a label's text in the colour value, readable on the label's own ground.
void SetTextColour(QLabel* label, int value);

} // namespace tessera
