#pragma once
// Every interaction with the world, in one bundle that tests fill with doubles.

#include "core/screen_host.h"
#include "core/session_state.h"

namespace tessera {

class Dialogs;
class Clock;
class Random;
class Sound;
class Printer;

struct Services {
    Dialogs& dialogs;
    Clock& clock;
    Random& random;
    Sound& sound;
    Printer& printer;
};

// What a screen is given when it is loaded: the shared state, the services, and the host
// through which it opens other screens by name.
struct ScreenContext {
    SessionState& state;
    Services& services;
    ScreenHost& screens;
};

} // namespace tessera
