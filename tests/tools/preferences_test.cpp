// The review test options dialog: what it shows, what it limits, and what it saves.

#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/preferences.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

namespace {

// A header full of marks, so that a stray write shows.
const std::string Marked = std::string("\x01\x00\x01\x00\x46", 5) + std::string(935, '\x5A');

struct Options : ScreenFixture {
    Options() {
        state.ScrambleQuestions = true;
        state.TimerActive = true;
        folder.write("TesseraConfig.MS", Marked);
        dialog = new Preferences(context);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    ~Options() { delete dialog; }
    void run(const std::string& steps) {
        ScreenScript(*dialog, dialogs)
            .with("grade",
                  [this](const QString& typed) {
                      dialog->Check5->click();
                      dialog->Text1->clear();
                      QTest::keyClicks(dialog->Text1, typed);
                  })
            .with("full", [this](const QString&) { full.emplace(FaultyFiles::Fault::DiskFull, 1); })
            .run(steps);
    }
    // The boxes ticked and the pictures and grade box shown (x), the grade box's text, whether
    // changes are pending and the grade they hold; the session's options and help topic; the
    // header's option bytes; the screens asked for and the messages.
    std::string rendered() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        std::string text = "closed";
        if (dialog) {
            text = "";
            for (const QCheckBox* box :
                 {dialog->Check1, dialog->Check2, dialog->Check3, dialog->Check5})
                text += box->isChecked() ? 'x' : '-';
            text += ' ';
            for (const QWidget* shown : std::initializer_list<const QWidget*>{
                     dialog->Picture1, dialog->Picture2, dialog->Text1, dialog->Label2[0]})
                text += shown->isHidden() ? '-' : 'x';
            text += " '" + dialog->Text1->text().toStdString() + "' " +
                    (dialog->changesPending() ? "pending " : "") +
                    std::to_string(dialog->chosenOptions().PassingGrade);
        }
        const std::string file = folder.read("TesseraConfig.MS");
        text += " | " + std::to_string(state.ScrambleQuestions) + std::to_string(state.SoundOn) +
                std::to_string(state.TimerActive) + std::to_string(state.IncludeProgressReport) +
                " " + std::to_string(state.PassingGrade) + " help " +
                std::to_string(state.HelpTopic) + " | file";
        for (int i = 0; i < 5; ++i)
            text += ' ' + std::to_string(file[i]);
        return text + (file.substr(5) == Marked.substr(5) ? "" : " and more") + " | " +
               screens.callsText() + " | " + dialogs.messagesText().toStdString();
    }

    QPointer<Preferences> dialog;
    std::optional<FaultyFiles> full;
};

const std::string Untouched = " | 1010 70 help 1 | file 1 0 1 0 70 |  | ";
const std::string Asked =
    " |  | Change in Preferences Detected! (yes/no): Save your preference changes?";

} // namespace

class PreferencesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clicksShowAndSaveTheOptions() {
        const std::pair<std::string, std::string> cases[] = {
            {"", "x-x- x--- '70' 70" + Untouched},
            {"click Check2", "xxx- xx-- '70' pending 70" + Untouched},
            // The grade box keeps within 0 to 100; the grade saved is rounded.
            {"grade 150", "x-xx x-xx '100' pending 100" + Untouched},
            {"grade -5", "x-xx x-xx '0' pending 0" + Untouched},
            {"grade 82.6", "x-xx x-xx '82.6' pending 83" + Untouched},
            {"grade abc", "x-xx x-xx 'abc' pending 0" + Untouched},
            {"grade   65", "x-xx x-xx '  65' pending 65" + Untouched},
            // Off again, the grade box hides but keeps what it holds.
            {"click Check1; click Check2; click Check5; click Check5; fill Text1 85; click "
             "Command1",
             "closed | 0110 85 help 1 | file 0 1 1 0 85 |  | "},
            {"click Check2; full; click Command1",
             "closed | 1110 70 help 1 | file 1 0 1 0 70 |  | Preferences Not Saved (critical ok): "
             "Your "
             "preferences could not be written to TesseraConfig.MS. They hold until you quit; make "
             "sure the study folder can be written to, then save them again."},
            {"click Check2; answer No; click Command2",
             "closed | 1010 70 help 1 | file 1 0 1 0 70" + Asked},
            {"click Check2; answer Yes; click Command2",
             "closed | 1110 70 help 1 | file 1 1 1 0 70" + Asked},
            {"click Command2", "closed" + Untouched},
            {"click Command3",
             "x-x- x--- '70' 70 | 1010 70 help 3 | file 1 0 1 0 70 | unload Help, modal Help | "},
        };
        for (const auto& [steps, expected] : cases) {
            Options o;
            o.run(steps);
            QCOMPARE(o.rendered(), expected);
        }
    }
};

} // namespace tessera

QTEST_MAIN(tessera::PreferencesTest)
#include "preferences_test.moc"
