// The alarm clock on screen: setting by time and by minutes ahead, sounding once a setting,
// the minimized title, setting the computer's clock, and closing that cancels the alarm.

#include "tests/support/screen_fixture.h"
#include "tools/alarm_form.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <memory>

namespace tessera {

class AlarmFormTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<AlarmForm> form;

    const QString notValid =
        QStringLiteral("The time you entered was not valid.\r\nPlease try again.");
    const QString goneBy =
        QStringLiteral("The time you entered has already gone by today.\r\nPlease try again.");

    void setTime(int hours, int minutes, int seconds) {
        f->clock.setDateTime(2026, 11, 19, hours, minutes, seconds);
    }

    void tickAfter(double seconds) {
        f->clock.advanceSeconds(seconds);
        form->Timer1_Timer();
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        f->state.UserName = "Pat Rivera" + std::string(20, ' ');
        setTime(15, 0, 0);
        form = std::make_unique<AlarmForm>(f->context);
    }

    void cleanup() {
        form.reset();
        f.reset();
    }

    void setAlarmPromptsUntilAUsableTime() {
        // No alarm at first: no time shown, and the minimized title cannot show it.
        QVERIFY(form->Label1->text().isEmpty());
        QVERIFY(form->Image1->isHidden());
        QVERIFY(form->Option1[0]->isChecked());
        QVERIFY(!form->Option1[1]->isEnabled());
        QCOMPARE(form->List1->count(), 60);
        QCOMPARE(form->Timer1->interval(), 300);

        std::vector<bool> ticking;
        f->dialogs.whileOpen([&] { ticking.push_back(form->Timer1->isActive()); });
        for (const char* typed : {"25:00", "2:00", "14:00", "4:00 PM"})
            f->dialogs.type(QString::fromLatin1(typed));
        form->Command1[0]->click();
        const auto& inputs = f->dialogs.inputs();
        QCOMPARE(inputs.size(), size_t{4});
        QCOMPARE(inputs[0].title, QStringLiteral("Set Alarm Clock"));
        QCOMPARE(inputs[0].prompt,
                 QStringLiteral("Use any 12-or 24-hour clock time. If AM or PM is omitted from "
                                "the 12-hour clock time, AM is assumed.\r\n\r\nEnter alarm "
                                "setting\r\n(hh:mm)."));
        const auto& shown = f->dialogs.messages();
        QCOMPARE(shown.size(), size_t{3});
        QCOMPARE(shown[0].text, notValid);
        QCOMPARE(shown[0].title, QStringLiteral("Sorry!"));
        QCOMPARE(shown[0].icon, MessageIcon::Question);
        QCOMPARE(shown[1].text, goneBy);
        QCOMPARE(shown[2].text, goneBy);
        QCOMPARE(ticking, std::vector<bool>(7, false)); // every box held the clock back
        QVERIFY(form->Timer1->isActive());
        QCOMPARE(form->alarmTime(), std::optional<int>(16 * 3600));
        QCOMPARE(form->Label1->text(), QStringLiteral("4:00:00 PM"));
        QVERIFY(!form->Image1->isHidden());
        QVERIFY(form->Option1[1]->isEnabled());
        // A cancelled prompt, offered the setting, keeps it.
        form->Command1[0]->click();
        QCOMPARE(form->alarmTime(), std::optional<int>(16 * 3600));
    }

    void soundsOnceASettingAndAgainNextDay() {
        f->dialogs.type(QStringLiteral("15:00:02"));
        form->Command1[0]->click();
        tickAfter(1);
        QCOMPARE(form->lblTime->text(), QStringLiteral("3:00:01 PM"));
        QVERIFY(f->sound.tones().empty());
        tickAfter(1);
        QCOMPARE(f->sound.tones(), (std::vector<Tone>{{1760, 800}}));
        const ShownMessage& alarm = f->dialogs.messages().back();
        QCOMPARE(alarm.text, QStringLiteral("Alarm at 3:00:02 PM"));
        QCOMPARE(alarm.title, QStringLiteral("Hello, Pat Rivera"));
        QCOMPARE(alarm.icon, MessageIcon::Exclamation);
        QVERIFY(form->Image1->isHidden());
        tickAfter(1);
        tickAfter(3600);
        QCOMPARE(f->sound.tones().size(), size_t{1});
        tickAfter(12 * 3600); // past midnight the setting waits again
        tickAfter(12 * 3600 - 3600);
        QCOMPARE(f->sound.tones().size(), size_t{2});
    }

    void autoSetAcrossMidnightSoundsAtTheNextSecond() {
        setTime(23, 55, 0);
        form->List1->setCurrentRow(0);
        form->Command1[3]->click();
        QCOMPARE(form->Label1->text(), QStringLiteral("12:05:00 AM"));
        QVERIFY(!form->Image1->isHidden());
        tickAfter(1);
        QCOMPARE(f->sound.tones().size(), size_t{1});
    }

    void minimizedTitleShowsTheChosenTime() {
        form->show();
        form->showMinimized();
        QCOMPARE(form->windowTitle(), QStringLiteral("03:00 PM"));
        f->dialogs.type(QStringLiteral("5:30 PM"));
        form->Command1[0]->click();
        form->Option1[1]->setChecked(true);
        tickAfter(30); // same minute: the title stays
        QCOMPARE(form->windowTitle(), QStringLiteral("03:00 PM"));
        tickAfter(30);
        QCOMPARE(form->windowTitle(), QStringLiteral("05:30 PM"));
        form->showNormal();
        QCOMPARE(form->windowTitle(), QStringLiteral("Alarm Clock"));
    }

    void setClockSetsTheTimeOfDayOnly() {
        f->dialogs.type(QStringLiteral("7:30 PM"));
        form->Command1[1]->click();
        QCOMPARE(f->dialogs.inputs()[0].title, QStringLiteral("Set Computer Clock"));
        QVERIFY(f->dialogs.inputs()[0].prompt.endsWith(
            QStringLiteral("\r\n\r\nEnter current time\r\n(hh:mm).")));
        QCOMPARE(f->clock.timesSet(), (std::vector<TimeOfDay>{{19, 30, 0}}));
        QCOMPARE(form->lblTime->text(), QStringLiteral("7:30:00 PM"));
        // Not a time: one message and no new prompt.
        f->dialogs.type(QStringLiteral("half past"));
        form->Command1[1]->click();
        QCOMPARE(f->dialogs.inputs().size(), size_t{2});
        QCOMPARE(f->dialogs.messages().back().text, notValid);
        QCOMPARE(f->clock.timesSet().size(), size_t{1});
    }

    void closingCancelsTheAlarm() {
        QWidget menu;
        f->screens.place(ScreenName::ButtonMenu, &menu);
        menu.showMinimized();
        f->dialogs.type(QStringLiteral("18:00"));
        form->Command1[0]->click();
        form->show();
        form->Command1[2]->click();
        QVERIFY(!form->alarmTime());
        QVERIFY(!form->Timer1->isActive());
        QVERIFY(!menu.isMinimized());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::AlarmFormTest)
#include "alarm_form_test.moc"
