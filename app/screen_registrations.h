#pragma once
// Every screen of the program, registered by the subsystem that builds it.

#include "core/screen_registry.h"

namespace tessera {

void RegisterAllScreens(ScreenRegistry& registry);

} // namespace tessera
