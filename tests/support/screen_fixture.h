#pragma once
// What a screen test gives the screen it opens: a study folder of its own as the current
// directory, the doubles, a session, and a host that records what the screen asks of it.

#include "platform/services.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

namespace tessera {

struct ScreenFixture : TestServices {
    StudyFolder folder;
    SessionState state;
    RecordingScreenHost screens;
    ScreenContext context{state, services, screens};
};

} // namespace tessera
