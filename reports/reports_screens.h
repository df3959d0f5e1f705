#pragma once
// The screens of the report cards and monitoring, made known to the application object.

#include "core/screen_registry.h"

namespace tessera {

void RegisterReportScreens(ScreenRegistry& registry);

} // namespace tessera
