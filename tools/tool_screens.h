#pragma once
// The reference and desk tool screens, made known to the application object.

#include "core/screen_registry.h"

namespace tessera {

void RegisterToolScreens(ScreenRegistry& registry);

} // namespace tessera
