// The alarm clock on screen: setting it, sounding once a setting, the minimized title, setting
// the computer's clock, and closing that cancels the alarm.

#include "tests/support/screen_fixture.h"
#include "tests/support/screen_script.h"
#include "tools/alarm_form.h"

#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace tessera {

namespace {

struct Alarm : ScreenFixture {
    Alarm() {
        state.UserName = "Pat Rivera" + std::string(20, ' ');
        clock.setDateTime(2026, 11, 19, 15, 0, 0);
        // Every box holds the clock back while it stands open.
        dialogs.whileOpen([this] { tickedUnderABox |= form->Timer1->isActive(); });
    }
    void run(const std::string& steps) {
        const auto tick = [this](double seconds) {
            clock.advanceSeconds(seconds);
            form->Timer1_Timer();
        };
        ScreenScript(*form, dialogs)
            .with("tick", [tick](const QString& seconds) { tick(seconds.toDouble()); })
            .with("at",
                  [this](const QString& time) {
                      clock.setDateTime(2026, 11, 19, time.left(2).toInt(), time.mid(3).toInt(), 0);
                  })
            .with("row", [this](const QString& row) { form->List1->setCurrentRow(row.toInt()); })
            .with("show", [this](const QString&) { form->show(); })
            .with("minimize", [this](const QString&) { form->showMinimized(); })
            .with("normal", [this](const QString&) { form->showNormal(); })
            .with("menu",
                  [this](const QString&) {
                      screens.place(ScreenName::ButtonMenu, &menu);
                      menu.showMinimized();
                  })
            .run(steps);
    }
    // The alarm shown and set, and whether its picture shows (p), the clock ticks (t) and the
    // minimized title may show it (m); the time and the title; the tones; the times the clock
    // was set to; the input boxes' titles, and the messages. The navigation screen is left
    // minimized only where a test minimized it and nothing brought it back.
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
        text += u"|set"_s;
        for (const TimeOfDay& t : clock.timesSet())
            text += u" %1:%2:%3"_s.arg(t.hours).arg(t.minutes).arg(t.seconds);
        for (const ShownInput& input : dialogs.inputs())
            text += u'|' + input.title;
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
const std::string Asked = "|Set Alarm Clock";
const std::string Hello = "Hello, Pat Rivera (exclamation ok): Alarm at ";
const std::string Minimized =
    "show; minimize; type 5:30 PM; click Command1_0; click Option1_1; tick 30";

} // namespace

class AlarmFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clicksAndTicks() {
        const std::pair<std::string, std::string> cases[] = {
            // Asked until the time is usable; a cancelled prompt offered the setting keeps it.
            {"type 25:00; type 2:00; type 14:00; type 4:00 PM; click Command1_0; click Command1_0",
             "alarm 4:00:00 PM 57600 ptm||Alarm Clock|tones|set" + Asked + Asked + Asked + Asked +
                 Asked + "|" + NotValid + "\n" + GoneBy + "\n" + GoneBy},
            // Once at the setting, not a second before, and again the next day.
            {"type 15:00:02; click Command1_0; tick 1; tick 1; tick 1; tick 3600; tick 43200; "
             "tick 39600",
             "alarm 3:00:02 PM 54002 -tm|3:00:03 PM|Alarm Clock|tones 1760/800 1760/800|set" +
                 Asked + "|" + Hello + "3:00:02 PM\n" + Hello + "3:00:03 PM"},
            {"at 23:55; row 0; click Command1_3; tick 1",
             "alarm 12:05:00 AM 300 -tm|11:55:01 PM|Alarm Clock|tones 1760/800|set|" + Hello +
                 "11:55:01 PM"},
            // The minimized title shows the time the option chose, once the minute turns.
            {Minimized, "alarm 5:30:00 PM 63000 ptm||03:00 PM|tones|set" + Asked + "|"},
            {Minimized + "; tick 30",
             "alarm 5:30:00 PM 63000 ptm||05:30 PM|tones|set" + Asked + "|"},
            {Minimized + "; tick 30; normal",
             "alarm 5:30:00 PM 63000 ptm||Alarm Clock|tones|set" + Asked + "|"},
            // The clock takes the time of day only; not a time gives one message, no new prompt.
            {"type 7:30 PM; click Command1_1; tick 0",
             "alarm  -1 -t-|7:30:00 PM|Alarm Clock|tones|set 19:30:0|Set Computer Clock|"},
            {"type half past; click Command1_1",
             "alarm  -1 -t-||Alarm Clock|tones|set|Set Computer Clock|" + NotValid},
            // Closing cancels the alarm and brings the navigation screen back.
            {"menu; type 18:00; click Command1_0; show; click Command1_2",
             "alarm 6:00:00 PM -1 p-m||Alarm Clock|tones|set" + Asked + "|"},
        };
        for (const auto& [steps, expected] : cases) {
            Alarm a;
            a.run(steps);
            QCOMPARE(a.rendered(), expected);
        }
    }

    void promptsSayWhatToType() {
        Alarm a;
        a.run("click Command1_0; click Command1_1");
        const QString head = u"Use any 12-or 24-hour clock time. If AM or PM is omitted from the "
                             "12-hour clock time, AM is assumed.\r\n\r\nEnter "_s;
        QCOMPARE(a.dialogs.inputs()[0].prompt + u'|' + a.dialogs.inputs()[1].prompt,
                 head + u"alarm setting\r\n(hh:mm).|"_s + head + u"current time\r\n(hh:mm)."_s);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::AlarmFormTest)
#include "alarm_form_test.moc"
