#include "platform/fixed_pitch_font.h"

#include <QFontDatabase>

namespace tessera {

QFont FixedPitchFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

} // namespace tessera
