#pragma once
// The machine's own services: dialogs on the screen, the system clock, a seeded random source,
// the sound card's tone and the printer.

#include "app/deferred_printer.h"
#include "platform/qt_dialogs.h"
#include "platform/services.h"
#include "platform/system_clock.h"
#include "platform/system_random.h"
#include "platform/tone_sound.h"

namespace tessera {

struct RealServices {
    QtDialogs dialogs;
    SystemClock clock;
    SystemRandom random;
    ToneSound sound;
    DeferredPrinter printer;
    Services services{dialogs, clock, random, sound, printer};
};

} // namespace tessera
