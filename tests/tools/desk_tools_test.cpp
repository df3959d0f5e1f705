// The desk tools on screen: the review test options, the calculator and the alarm clock, each
// driven by a table of steps and compared as one rendering of what it shows and did.

#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/alarm_form.h"
#include "tools/calculator.h"
#include "tools/preferences.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <memory>
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
    std::string after(const std::string& steps) {
        ScreenScript(*dialog, dialogs)
            .with("full", [this](const QString&) { full.emplace(FaultyFiles::Fault::DiskFull, 1); })
            .run(steps);
        return rendered();
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

const std::string Grade = "click Check5; focus Text1; key Ctrl+A; keys ";
const std::string Untouched = " | 1010 70 help 1 | file 1 0 1 0 70 |  | ";
const std::string SaveAsked =
    " |  | Change in Preferences Detected! (yes/no): Save your preference changes?";

struct Calc : ScreenFixture {
    void open() {
        calculator = std::make_unique<Calculator>(context);
        calculator->show();
        calculator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(calculator.get()));
    }
    std::string after(const std::string& steps) {
        open();
        ScreenScript([this] { return calculator.get(); }, dialogs)
            .with("open", [this](const QString&) { open(); })
            .run(steps);
        return rendered();
    }
    // The readout, the memory line, the control with the focus, the clears in a row, the help
    // topic, the screens asked for, and the messages.
    std::string rendered() const {
        return (calculator->Readout->text() + u'|' + calculator->Label1->text() + u'|' +
                (calculator->isVisible() ? calculator->focusWidget()->objectName() : u"closed"_s))
                   .toStdString() +
               "|clears " + std::to_string(calculator->machine().clearPresses()) + "|help " +
               std::to_string(state.HelpTopic) + "|" + screens.callsText() + "|" +
               dialogs.messagesText().toStdString();
    }

    std::unique_ptr<Calculator> calculator;
};

struct Alarm : ScreenFixture {
    Alarm() {
        state.UserName = "Pat Rivera" + std::string(20, ' ');
        clock.setDateTime(2026, 11, 19, 15, 0, 0);
        // Every box holds the clock back while it stands open.
        dialogs.whileOpen([this] { tickedUnderABox |= form->Timer1->isActive(); });
    }
    std::string after(const std::string& steps) {
        ScreenScript(*form, dialogs)
            .with("tick",
                  [this](const QString& seconds) {
                      clock.advanceSeconds(seconds.toDouble());
                      form->Timer1_Timer();
                  })
            .with("minimize", [this](const QString&) { form->showMinimized(); })
            .with("normal", [this](const QString&) { form->showNormal(); })
            .with("menu",
                  [this](const QString&) {
                      screens.place(ScreenName::ButtonMenu, &menu);
                      menu.showMinimized();
                  })
            .run(steps);
        return rendered();
    }
    // The alarm shown and set, and whether its picture shows (p), the clock ticks (t) and the
    // minimized title may show it (m); the time and the title; the tones; the input boxes; a
    // navigation screen left minimized; the messages.
    std::string rendered() const {
        QString text =
            u"alarm %1 %2 "_s.arg(form->Label1->text()).arg(form->alarmTime().value_or(-1));
        text += form->Image1->isHidden() ? u'-' : u'p';
        text += form->Timer1->isActive() ? u't' : u'-';
        text += form->Option1[1]->isEnabled() ? u'm' : u'-';
        text += (tickedUnderABox ? u" ticked under a box|"_s : u"|"_s) + form->lblTime->text() +
                u'|' + form->windowTitle() + u"|tones"_s;
        for (const Tone& tone : sound.tones())
            text += u" %1/%2"_s.arg(tone.hertz).arg(tone.milliseconds);
        for (const ShownInput& input : dialogs.inputs())
            text += u'|' + input.title + u": "_s + input.prompt;
        if (menu.isMinimized())
            text += u"|menu minimized"_s;
        return (text + u'|' + dialogs.messagesText()).toStdString();
    }

    QWidget menu;
    std::unique_ptr<AlarmForm> form = std::make_unique<AlarmForm>(context);
    bool tickedUnderABox = false;
};

const std::string NotValid =
    "Sorry! (question ok): The time you entered was not valid.\r\nPlease try again.";
const std::string GoneBy = "Sorry! (question ok): The time you entered has already gone by "
                           "today.\r\nPlease try again.";
const std::string Enter = "Use any 12-or 24-hour clock time. If AM or PM is omitted from the "
                          "12-hour clock time, AM is assumed.\r\n\r\nEnter ";
const std::string AlarmAsked = "|Set Alarm Clock: " + Enter + "alarm setting\r\n(hh:mm).";
const std::string ClockAsked = "|Set Computer Clock: " + Enter + "current time\r\n(hh:mm).";
const std::string Hello = "Hello, Pat Rivera (exclamation ok): Alarm at ";
const std::string Minimized = "minimize; type 5:30 PM; click Command1_0; click Option1_1; tick 30";

} // namespace

class DeskToolsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optionsClicksShowAndSave() {
        const std::pair<std::string, std::string> cases[] = {
            // The grade box keeps within 0 to 100; the grade saved is rounded.
            {"click Check2; " + Grade + "150", "xxxx xxxx '100' pending 100" + Untouched},
            {Grade + "-5", "x-xx x-xx '0' pending 0" + Untouched},
            {Grade + "82.6", "x-xx x-xx '82.6' pending 83" + Untouched},
            // Off again, the grade box hides but keeps what it holds.
            {"click Check1; click Check2; click Check5; click Check5; fill Text1 85; click "
             "Command1",
             "closed | 0110 85 help 1 | file 0 1 1 0 85 |  | "},
            {"click Check2; full; click Command1",
             "closed | 1110 70 help 1 | file 1 0 1 0 70 |  | Preferences Not Saved (critical ok): "
             "Your preferences could not be written to TesseraConfig.MS. They hold until you "
             "quit; make sure the study folder can be written to, then save them again."},
            {"click Check2; answer No; click Command2",
             "closed | 1010 70 help 1 | file 1 0 1 0 70" + SaveAsked},
            {"click Check2; answer Yes; click Command2",
             "closed | 1110 70 help 1 | file 1 1 1 0 70" + SaveAsked},
            // Help, then closing unchanged, which asks nothing.
            {"click Command3; click Command2",
             "closed | 1010 70 help 3 | file 1 0 1 0 70 | unload Help, modal Help | "},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Options().after(steps), expected);
    }

    void calculatorKeysAndClicksWhereverTheFocusStands() {
        const std::pair<std::string, std::string> cases[] = {
            // "0" on "0." does nothing at all, not even move the focus.
            {"focus Command1_3; click Number_0", "0.||Command1_3|clears 0|help 1||"},
            // Enter presses the focused button, which after a digit is "="; no operator goes first.
            {"focus Number_7; key Return; keys +3x4; key Return",
             "40||Operator_4|clears 0|help 1||"},
            {"keys 9; key F9; key Ctrl+M; key Esc; key Ctrl+R",
             "9|Mem:  9|Number_10|clears 0|help 1||"},
            {"keys 9; key Ctrl+P; key Ctrl+C", "9.|Mem:  9|closed|clears 0|help 1||"},
            // The memory outlives closing, and shows once used.
            {"keys 9; key Ctrl+P; key Ctrl+C; open; click Command1_4",
             "9||Number_0|clears 0|help 1||"},
            // The machine's words, title and icon reach the dialogs as they are; Esc clears the
            // entry, and help opens on the calculator's topic.
            {"keys 7/0=; keys " + std::string(400, '9') + "x=; keys 5; key Esc; click Command1_2",
             "0.||Operator_4|clears 0|help 15|unload Help, show Help|Calculator (ok): Can't divide "
             "by zero\nERROR (exclamation ok): Sorry, Overflow!"},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Calc().after(steps), expected);
    }

    void alarmClicksAndTicks() {
        const std::pair<std::string, std::string> cases[] = {
            // Asked until the time is usable; a cancelled prompt offered the setting keeps it.
            {"type 25:00; type 2:00; type 14:00; type 4:00 PM; click Command1_0; click Command1_0",
             "alarm 4:00:00 PM 57600 ptm||Alarm Clock|tones" + AlarmAsked + AlarmAsked +
                 AlarmAsked + AlarmAsked + AlarmAsked + "|" + NotValid + "\n" + GoneBy + "\n" +
                 GoneBy},
            // Once at the setting, not a second before, and again the next day.
            {"type 15:00:02; click Command1_0; tick 1; tick 1; tick 1; tick 3600; tick 43200; "
             "tick 39600",
             "alarm 3:00:02 PM 54002 -tm|3:00:03 PM|Alarm Clock|tones 1760/800 1760/800" +
                 AlarmAsked + "|" + Hello + "3:00:02 PM\n" + Hello + "3:00:03 PM"},
            {"tick 32100; click Command1_3; tick 1",
             "alarm 12:05:00 AM 300 -tm|11:55:01 PM|Alarm Clock|tones 1760/800|" + Hello +
                 "11:55:01 PM"},
            // The minimized title shows the time the option chose, once the minute turns.
            {Minimized, "alarm 5:30:00 PM 63000 ptm||03:00 PM|tones" + AlarmAsked + "|"},
            {Minimized + "; tick 30",
             "alarm 5:30:00 PM 63000 ptm||05:30 PM|tones" + AlarmAsked + "|"},
            {Minimized + "; tick 30; normal",
             "alarm 5:30:00 PM 63000 ptm||Alarm Clock|tones" + AlarmAsked + "|"},
            // The clock takes the time of day only; not a time gives one message and no new
            // prompt; a cancelled prompt changes nothing.
            {"type half past; click Command1_1; type 7:30 PM; click Command1_1; click Command1_1; "
             "tick 0",
             "alarm  -1 -t-|7:30:00 PM|Alarm Clock|tones" + ClockAsked + ClockAsked + ClockAsked +
                 "|" + NotValid},
            // Closing cancels the alarm and brings the navigation screen back.
            {"menu; type 18:00; click Command1_0; normal; click Command1_2",
             "alarm 6:00:00 PM -1 p-m||Alarm Clock|tones" + AlarmAsked + "|"},
        };
        for (const auto& [steps, expected] : cases)
            QCOMPARE(Alarm().after(steps), expected);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::DeskToolsTest)
#include "desk_tools_test.moc"
