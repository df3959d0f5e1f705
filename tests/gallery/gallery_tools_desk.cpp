// The desk tools as a candidate finds them: the options, the calculator and the alarm clock.

#include "tests/gallery/gallery.h"
#include "tools/alarm_form.h"
#include "tools/calculator.h"
#include "tools/preferences.h"

#include <QListWidget>

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

// An alarm set twenty minutes ahead, the clock showing the time now.
const GalleryEntry alarm("tools_desk_alarm_set", [](GalleryScene& scene) -> QWidget* {
    scene.clock.setDateTime(2026, 11, 19, 14, 15, 30);
    auto* screen = new AlarmForm(scene.context);
    screen->List1->setCurrentRow(1);
    screen->Command1_Click(3);
    screen->Timer1_Timer();
    return screen;
});

} // namespace

} // namespace tessera
