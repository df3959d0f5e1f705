// The navigation screen driven as a user would: options, commands, keys, and the end.

#include "core/button_menu.h"
#include "tests/support/screen_fixture.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QtTest>

#include <functional>
#include <memory>

using namespace tessera;

namespace {

class OpenNoteBook final : public QWidget, public SavesNoteBook {
public:
    bool SaveNoteBook() override { return ++saves > 0; }
    int saves = 0;
};

struct Menu : ScreenFixture {
    QWidget viewer;
    std::unique_ptr<ButtonMenu> menu;

    ButtonMenu& open() {
        menu = std::make_unique<ButtonMenu>(context);
        menu->show();
        return *menu;
    }
    QAbstractButton* button(const QString& name) const {
        return Control<QAbstractButton>(menu.get(), name);
    }
    // The frame shown (x) of the five, the option chosen, the screens asked for, the topics
    // the session points at, and the controls that are disabled.
    std::string rendered() const {
        std::string text;
        for (int i = 0; i < 5; ++i)
            text += Control<QGroupBox>(menu.get(), QStringLiteral("Frame1_%1").arg(i))->isHidden()
                        ? '-'
                        : 'x';
        for (int i = 0; i <= 6; ++i)
            if (button(QStringLiteral("Option1_%1").arg(i))->isChecked())
                text += " option " + std::to_string(i);
        text += " | " + screens.callsText() + " | topic " + std::to_string(state.CurrentTopic) +
                " help " + std::to_string(state.HelpTopic) + " viewer " +
                std::to_string(state.ViewerSection) + " | off:";
        for (QAbstractButton* control : menu->findChildren<QAbstractButton*>())
            if (!control->isEnabled())
                text += ' ' + control->objectName().toStdString() +
                        (control->objectName().startsWith(u'O')
                             ? '(' + control->text().toStdString() + ')'
                             : "");
        return text;
    }
};

} // namespace

class ButtonMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clicksOpenFramesAndScreens() {
        const std::tuple<std::function<void(Menu&)>, const char*, std::string> cases[] = {
            {nullptr, "Option1_1 Option1_0 Command1_2",
             "----- option 6 | show ExamSet, show Quiz800 | topic 3 help 1 viewer 1 | off:"},
            {nullptr,
             "Command2_0 Command2_1 Command2_2 Command5_2 Command3_1 Command3_2 Command3_3 "
             "Command3_4",
             "----- option 6 | unload QuizSumm, show QuizSumm, unload Scoring, show Scoring, modal "
             "Navigator, unload Help, show Help, show NoteBook, show Calculator, show AlarmForm, "
             "modal Preferences | topic 1 help 17 viewer 1 | off:"},
            // A suspended test or exam opens at once.
            {[](Menu& m) {
                 m.state.ExamPosition = 5;
                 m.state.TestPosition = 2;
             },
             "Option1_1 Option1_0",
             "----- option 6 | show ExamTest, show Quiz800 | topic 1 help 1 viewer 1 | off: "
             "Command2_0 "
             "Command2_1"},
            // The viewer open on another section goes first.
            {[](Menu& m) {
                 m.screens.place(ScreenName::Viewing, &m.viewer);
                 m.state.ViewerSection = 8;
             },
             "Command3_0 Command4_4",
             "----- option 6 | show Viewing, unload Viewing, show Viewing | topic 1 help 1 viewer "
             "5 | off:"},
            {[](Menu& m) {
                 for (ScreenName name :
                      {ScreenName::Quiz800, ScreenName::Help, ScreenName::ExamSet})
                     m.screens.setMissing(name);
             },
             "Option1_0",
             "x---- option 0 |  | topic 1 help 1 viewer 1 | off: Option1_1(&Screening Exam) "
             "Command1_0 Command1_1 Command1_2 Command1_3 Command1_4 Command1_5 Command1_6 "
             "Command1_7 Command1_8 Command5_0 Command5_1 Command5_2"},
            // A topic taken three times is done; so are the exams, each taken three times.
            {[](Menu& m) {
                 std::fill_n(&m.state.TakeCounts[1], 12, int16_t(3));
                 m.state.TakeCounts[9] = 2;
             },
             "Option1_0",
             "x---- option 0 |  | topic 1 help 1 viewer 1 | off: Option1_1(All Exams Taken Three "
             "Times) Command1_0 Command1_1 Command1_2 Command1_3 Command1_4 Command1_5 Command1_6 "
             "Command1_7"},
        };
        for (const auto& [arrange, clicks, expected] : cases) {
            Menu m;
            if (arrange)
                arrange(m);
            m.open();
            for (const QString& name : QString::fromLatin1(clicks).split(u' '))
                m.button(name)->click();
            QCOMPARE(m.rendered(), expected);
        }
    }

    void keyboardReachesEverything() {
        Menu m;
        ButtonMenu& menu = m.open();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QTest::keyClick(&menu, Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(m.rendered().starts_with("---x- option 4")); // a mnemonic clicks late
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(m.rendered().starts_with("----- option 6"));
    }

    void closingSavesTheNotesAndEndsTheProgram() {
        Menu m;
        OpenNoteBook notebook;
        m.screens.place(ScreenName::NoteBook, &notebook);
        m.state.NoteBookChanged = true;
        m.dialogs.answer(MessageAnswer::Yes);
        ButtonMenu& menu = m.open();

        menu.setEnabled(false); // a test is running
        menu.close();
        QVERIFY(menu.isVisible() && m.dialogs.messages().empty());

        menu.setEnabled(true);
        menu.close();
        QCOMPARE(
            m.dialogs.messagesText(),
            QStringLiteral("Change to NoteBook Detected! (yes/no): Save your changes to disk?"));
        QVERIFY(notebook.saves == 1 && m.screens.programEnded());
    }

    void tooSmallADisplayIsRefused() {
        TestServices doubles;
        QVERIFY(CheckDisplaySize(doubles.dialogs, 800, 600) &&
                !CheckDisplaySize(doubles.dialogs, 1024, 599) &&
                !CheckDisplaySize(doubles.dialogs, 799, 768));
        const QString refused = QStringLiteral(
            "Higher Display Resolution Required! (critical ok): Please set your display at a "
            "resolution of 800 by 600 (Super VGA) or higher. A minimum resolution of 800 by 600 is "
            "required to properly use the Review Software. To raise the setting, use My Computer, "
            "followed by Display.");
        QCOMPARE(doubles.dialogs.messagesText(), refused + u'\n' + refused);
    }
};

QTEST_MAIN(ButtonMenuTest)
#include "button_menu_test.moc"
