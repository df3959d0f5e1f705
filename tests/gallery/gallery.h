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

#include "tests/support/screen_fixture.h"

#include <QString>

#include <functional>

class QWidget;

namespace tessera {

class Printer;

// What an entry builds its screen from: the screen fixture, on which every screen is available.
struct GalleryScene : ScreenFixture {
    // The default course compiled from its source and cut as start-up would; the made-up
    // full-size course where the source does not compile.
    void loadDefaultCourse();
};

// Builds the screen to render; the gallery owns and shows it. Nothing means the entry failed.
using GalleryBuild = std::function<QWidget*(GalleryScene& scene)>;

struct GalleryEntry {
    GalleryEntry(const char* name, GalleryBuild build);
};

// The scene's shared state and doubles with a real printer in place of the recording one, so
// that a screen's own print command reaches paper.
struct PrintingContext {
    PrintingContext(GalleryScene& scene, Printer& printer)
        : services{scene.dialogs, scene.clock, scene.random, scene.sound, printer},
          context{scene.state, services, scene.screens} {}

    Services services;
    ScreenContext context;
};

// Printed output: the print command run through the real printer's PDF path, its first page
// turned into a picture by pdftoppm and shown as the entry's screen; the whole PDF stays beside
// the pictures as <name>.pdf. Nothing when the PDF or its picture could not be made.
QWidget* PrintedFirstPage(const QString& name, const std::function<void(Printer&)>& print);

} // namespace tessera
