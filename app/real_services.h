#pragma once
// The machine's own services: dialogs on the screen, the system clock, a seeded random source,
// the sound card's tone and the printer, the last two woken on first use.

#include "app/deferred_printer.h"
#include "app/deferred_sound.h"
#include "platform/qt_dialogs.h"
#include "platform/services.h"
#include "platform/system_clock.h"
#include "platform/system_random.h"

namespace tessera {

struct RealServices {
    QtDialogs dialogs;
    SystemClock clock;
    SystemRandom random;
    DeferredSound sound;
    DeferredPrinter printer;
    Services services{dialogs, clock, random, sound, printer};
};

} // namespace tessera
