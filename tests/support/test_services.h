#pragma once
// Every service as a double, bundled as a screen is given them.

#include "platform/services.h"
#include "tests/support/fake_clock.h"
#include "tests/support/fake_random.h"
#include "tests/support/recording_printer.h"
#include "tests/support/scripted_dialogs.h"
#include "tests/support/silent_sound.h"

namespace tessera {

struct TestServices {
    ScriptedDialogs dialogs;
    FakeClock clock;
    FakeRandom random;
    SilentSound sound;
    RecordingPrinter printer;
    Services services{dialogs, clock, random, sound, printer};
};

} // namespace tessera
