#pragma once
// Printed output in the gallery: a print command run through the real printer's PDF path, its
// first page turned into a picture by pdftoppm and shown as the entry's screen. The whole PDF
// stays beside the pictures as <name>.pdf.

#include "tests/gallery/gallery.h"

#include <QString>

#include <functional>

class QWidget;

namespace tessera {

class Printer;

// The scene's shared state and doubles with a real printer in place of the recording one, so
// that a screen's own print command reaches paper.
struct PrintingContext {
    PrintingContext(GalleryScene& scene, Printer& printer)
        : services{scene.dialogs, scene.clock, scene.random, scene.sound, printer},
          context{scene.state, services, scene.screens} {}

    Services services;
    ScreenContext context;
};

// Nothing when the PDF or its picture could not be made; the reason goes to stderr.
QWidget* PrintedFirstPage(const QString& name, const std::function<void(Printer&)>& print);

} // namespace tessera
