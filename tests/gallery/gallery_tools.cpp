// The tools as a candidate finds them: the options, the calculator, the alarm clock, the glossary
// with its find panel open, a help text, and the notebook with its find box.

#include "core/new_notebook.h"
#include "tests/gallery/gallery.h"
#include "tools/alarm_form.h"
#include "tools/calculator.h"
#include "tools/help.h"
#include "tools/note_book.h"
#include "tools/preferences.h"
#include "tools/viewing.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

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
