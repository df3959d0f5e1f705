// The reading screens as a candidate meets them: a discussion text, the glossary at a few
// letters and with the find panel open, a help text, and the notebook.

#include "core/content_file.h"
#include "core/new_notebook.h"
#include "course/compiler/content_writer.h"
#include "course/compiler/course_source.h"
#include "tests/gallery/gallery.h"
#include "tests/support/full_course_generator.h"
#include "tools/help.h"
#include "tools/note_book.h"
#include "tools/viewing.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <filesystem>

namespace tessera {

namespace {

// The default course as the program reads it; the made-up one where the source won't compile.
void LoadCourse(SessionState& state) {
    std::vector<course::SourceError> errors;
    const course::Course source =
        course::ReadCourse(std::filesystem::path(TESSERA_SOURCE_ROOT) / "course", errors);
    std::string file = errors.empty() ? course::WriteContent(source, errors) : std::string();
    if (!errors.empty() || file.size() < 2)
        file = FullCourseContent();
    CutContent(std::string_view(file.data(), file.size() - 1), state.catalogue, state.content);
}

Viewing* GlossaryAt(GalleryScene& scene, char letter) {
    LoadCourse(scene.state);
    scene.state.ViewerSection = Viewing::GlossarySection;
    auto* viewing = new Viewing(scene.context);
    viewing->Command3[letter - 'A']->click();
    return viewing;
}

const GalleryEntry discussion("tools_viewing_discussion", [](GalleryScene& scene) -> QWidget* {
    LoadCourse(scene.state);
    scene.state.ViewerSection = 2;
    return new Viewing(scene.context);
});

const GalleryEntry glossaryA("tools_viewing_glossary_a", [](GalleryScene& scene) -> QWidget* {
    return GlossaryAt(scene, 'A');
});
const GalleryEntry glossaryM("tools_viewing_glossary_m", [](GalleryScene& scene) -> QWidget* {
    return GlossaryAt(scene, 'M');
});

const GalleryEntry glossaryFind("tools_viewing_glossary_find", [](GalleryScene& scene) -> QWidget* {
    Viewing* viewing = GlossaryAt(scene, 'T');
    viewing->Command1[6]->click();
    viewing->Option1[2]->setChecked(true);
    viewing->Text2->setText(QStringLiteral("escrow"));
    viewing->Command1[4]->click();
    return viewing;
});

const GalleryEntry help("tools_help_notebook_topic", [](GalleryScene& scene) -> QWidget* {
    LoadCourse(scene.state);
    scene.state.HelpTopic = 8;
    return new Help(scene.context);
});

const GalleryEntry notebook("tools_notebook", [](GalleryScene& scene) -> QWidget* {
    scene.folder.write(scene.state.catalogue.NoteBookFileName,
                       NewNoteBookText(scene.state.catalogue, "Dana Whitfield"));
    return new NoteBook(scene.context);
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
