// The reading screens as a candidate meets them: a discussion text, the glossary at a letter
// and with the find panel open, a help text, and the notebook with its find box.

#include "core/new_notebook.h"
#include "tests/gallery/gallery.h"
#include "tools/help.h"
#include "tools/note_book.h"
#include "tools/viewing.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace tessera {

namespace {

const GalleryEntry glossaryFind("tools_viewing_glossary_find", [](GalleryScene& scene) -> QWidget* {
    scene.loadDefaultCourse();
    scene.state.ViewerSection = Viewing::GlossarySection;
    auto* viewing = new Viewing(scene.context);
    viewing->Command3['T' - 'A']->click();
    viewing->Command1[6]->click();
    viewing->Option1[2]->setChecked(true);
    viewing->Text2->setText(QStringLiteral("escrow"));
    viewing->Command1[4]->click();
    return viewing;
});

const GalleryEntry help("tools_help_notebook_topic", [](GalleryScene& scene) -> QWidget* {
    scene.loadDefaultCourse();
    scene.state.HelpTopic = 8;
    return new Help(scene.context);
});

const GalleryEntry notebookFind("tools_notebook_find", [](GalleryScene& scene) -> QWidget* {
    scene.folder.write(scene.state.catalogue.NoteBookFileName,
                       NewNoteBookText(scene.state.catalogue, "Dana Whitfield"));
    auto* notebook = new NoteBook(scene.context);
    notebook->Command1[0]->click();
    notebook->Text1->setText(QStringLiteral("Valuation"));
    notebook->Command2[0]->click();
    return notebook;
});

} // namespace

} // namespace tessera
