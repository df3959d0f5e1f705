#include "core/core_screens.h"

#include "core/button_menu.h"

namespace tessera {

void RegisterCoreScreens(ScreenRegistry& registry) {
    registry.add<ButtonMenu>(ScreenName::ButtonMenu);
}

} // namespace tessera
