#pragma once
// A fresh session on the small course, 70% to pass, in a temporary study folder of its own
// that is the current directory, with every service a double.

#include "tests/support/small_course.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

namespace tessera {

struct StudyFixture : TestServices {
    StudyFixture() {
        FillSmallCourse(state);
        state.PassingGrade = 70;
    }

    StudyFolder folder;
    SessionState state;
};

} // namespace tessera
