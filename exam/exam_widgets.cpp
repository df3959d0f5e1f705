#include "exam/exam_widgets.h"

#include "core/screen_host.h"

#include <QFontDatabase>
#include <QWidget>

namespace tessera {

QFont FixedPitchFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

void SetNavigationEnabled(ScreenHost& screens, bool enabled) {
    QWidget* menu = screens.find(ScreenName::ButtonMenu);
    if (menu == nullptr) {
        return;
    }
    menu->setEnabled(enabled);
    if (enabled && menu->isMinimized()) {
        menu->showNormal();
    }
}

} // namespace tessera
