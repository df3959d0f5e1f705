#pragma once
// The screen gallery: each area registers entries that build a screen in a representative
// state; the gallery program renders every one of them to a PNG file under the build folder.
//
// An area adds tests/gallery/gallery_<area>.cpp with entries like
//
//     const GalleryEntry quizFirstItem("review_quiz_first_item", [](GalleryScene& scene) {
//         scene.state.CurrentTopic = 3;
//         return new Quiz800(scene.context);
//     });
//
// and the build picks the file up by itself.

#include "core/session_state.h"
#include "platform/services.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <QString>

#include <functional>

class QWidget;

namespace tessera {

// What an entry builds its screen from: a study folder of its own as the current directory,
// the doubles, a catalogue already filled, and a host on which every screen is available.
struct GalleryScene {
    GalleryScene();

    // The default course compiled from its source and cut as start-up would; the made-up
    // full-size course where the source does not compile.
    void loadDefaultCourse();

    StudyFolder folder;
    TestServices doubles;
    SessionState state;
    RecordingScreenHost screens;
    ScreenContext context{state, doubles.services, screens};
};

// Builds the screen to render; the gallery owns and shows it. Nothing means the entry failed.
using GalleryBuild = std::function<QWidget*(GalleryScene& scene)>;

struct GalleryEntry {
    GalleryEntry(const char* name, GalleryBuild build);
};

} // namespace tessera
