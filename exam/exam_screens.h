#pragma once
// The screens of the screening exams, made known to the application object.

#include "core/screen_registry.h"

namespace tessera {

void RegisterExamScreens(ScreenRegistry& registry);

} // namespace tessera
