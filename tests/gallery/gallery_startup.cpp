// The title screen and the navigation screen in the states a candidate meets them.

#include "core/button_menu.h"
#include "core/pubdat.h"
#include "tests/gallery/gallery.h"

#include <QRadioButton>

namespace tessera {

namespace {

const std::string UserName = "Pat Doe" + std::string(23, ' ');

ButtonMenu* navigation(GalleryScene& scene, int option) {
    scene.state.UserName = UserName;
    auto* menu = new ButtonMenu(scene.context);
    menu->findChild<QRadioButton*>(QStringLiteral("Option1_%1").arg(option))->click();
    return menu;
}

const GalleryEntry title("startup_title_screen", [](GalleryScene& scene) -> QWidget* {
    scene.folder.write("Tessera", "{\\rtf1 }\r\n");
    scene.dialogs.type(QStringLiteral("Pat Doe"));
    scene.dialogs.answer(MessageAnswer::Yes);
    auto* screen = new Pubdat(scene.context);
    return scene.screens.programEnded() ? nullptr : screen;
});

const GalleryEntry midCourse("startup_navigation_mid_course", [](GalleryScene& scene) -> QWidget* {
    const std::array<int16_t, 10> drills = {0, 3, 2, 1, 1, 0, 2, 3, 0, 1};
    std::copy(drills.begin(), drills.end(), scene.state.TakeCounts.begin());
    return navigation(scene, 0);
});

const GalleryEntry suspended("startup_navigation_suspended", [](GalleryScene& scene) -> QWidget* {
    scene.state.TakeCounts[3] = 1;
    scene.state.TestPosition = 14;
    scene.state.CurrentTopic = 3;
    scene.state.TestType = 3;
    scene.state.ExamPosition = 72;
    scene.state.ExamType = 2;
    return navigation(scene, 2);
});

const GalleryEntry finished("startup_navigation_all_finished", [](GalleryScene& scene) -> QWidget* {
    scene.state.TakeCounts.fill(3);
    return navigation(scene, 3);
});

} // namespace

} // namespace tessera
