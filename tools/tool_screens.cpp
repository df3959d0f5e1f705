#include "tools/tool_screens.h"

#include "tools/help.h"

namespace tessera {

void RegisterToolScreens(ScreenRegistry& registry) {
    registry.add<Help>(ScreenName::Help);
}

} // namespace tessera
