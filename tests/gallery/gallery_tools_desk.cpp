// The desk tools as a candidate finds them: the options, the calculator and the alarm clock.

#include "tests/gallery/gallery.h"
#include "tools/calculator.h"
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

// A commission worked out: the price is in memory, and the rate is being typed.
const GalleryEntry calculator("tools_desk_calculator", [](GalleryScene& scene) -> QWidget* {
    auto* screen = new Calculator(scene.context);
    for (const char key : std::string("185000\x10X0.06"))
        screen->CalculatorKey(static_cast<unsigned char>(key));
    return screen;
});

} // namespace

} // namespace tessera
