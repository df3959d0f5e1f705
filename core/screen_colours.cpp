#include "core/screen_colours.h"

#include <QLabel>

namespace tessera {

QColor ColourOf(int value) {
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

void SetTextColour(QLabel* label, int value) {
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, ColourOf(value));
    label->setPalette(palette);
}

} // namespace tessera
