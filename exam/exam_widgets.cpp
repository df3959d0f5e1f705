#include "exam/exam_widgets.h"

#include "core/screen_host.h"

#include <QWidget>

namespace tessera {

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
