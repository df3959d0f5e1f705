#include "core/core_screens.h"

#include "core/button_menu.h"
#include "core/pubdat.h"

namespace tessera {

void RegisterCoreScreens(ScreenRegistry& registry) {
    registry.add<Pubdat>(ScreenName::Pubdat);
    registry.add<ButtonMenu>(ScreenName::ButtonMenu);
}

} // namespace tessera
