#pragma once
// What a screen is given when it is loaded: the shared state, the services, and the host
// through which it opens other screens by name.

#include "core/screen_host.h"
#include "core/session_state.h"
#include "platform/services.h"

namespace tessera {

struct ScreenContext {
    SessionState& state;
    Services& services;
    ScreenHost& screens;
};

} // namespace tessera
