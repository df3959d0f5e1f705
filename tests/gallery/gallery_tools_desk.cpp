// The desk tools as a candidate finds them: the options, the calculator and the alarm clock.

#include "tests/gallery/gallery.h"
#include "tools/preferences.h"

namespace tessera {

namespace {

const GalleryEntry options("tools_desk_options", [](GalleryScene& scene) -> QWidget* {
    scene.state.ScrambleQuestions = true;
    scene.state.SoundOn = true;
    scene.state.IncludeProgressReport = true;
    scene.state.PassingGrade = 80;
    return new Preferences(scene.context);
});

} // namespace

} // namespace tessera
