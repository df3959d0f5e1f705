#pragma once
// The two screens of the course core: the title screen and the navigation screen.

#include "core/screen_registry.h"

namespace tessera {

void RegisterCoreScreens(ScreenRegistry& registry);

} // namespace tessera
