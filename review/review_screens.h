#pragma once
// The screens of the topic review tests, made known to the application object.

#include "core/screen_registry.h"

namespace tessera {

void RegisterReviewScreens(ScreenRegistry& registry);

} // namespace tessera
