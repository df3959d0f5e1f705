#pragma once
// A small course for the review screens' tests, and the doubles a screen is given.

#include "core/screen_context.h"
#include "tests/support/recording_screens.h"
#include "tests/support/test_services.h"

#include <string>

namespace tessera {

// Topic t has SmallCourseCounts[t] items; topic 6's item 8 has the first picture.
inline constexpr std::array<int, TopicCount + 1> SmallCourseCounts = {0, 6, 3, 2, 2, 2, 8, 2, 2, 2};

// The right letter of a running item number, spread over A to D.
char RightLetterOf(int runningNumber);

// The item's question fragment names its running number and its four answers.
std::string SmallCourseItem(int topic, int ordinal, int runningNumber);

// Fills the catalogue and cuts nothing from disk: the course lives in memory only.
void FillSmallCourse(SessionState& state);

struct ReviewScreenFixture : TestServices {
    SessionState state;
    RecordingScreenHost screens;
    ScreenContext context{state, services, screens};

    // A first run: a fresh session on the small course, no progress file, 70% to pass.
    void startFresh();
    // A later run: a fresh session that restores what the progress file holds.
    void startNewRun();
};

} // namespace tessera
