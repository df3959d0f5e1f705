// The navigation screen driven as a user would: options, commands, keys, and the end.

#include "core/button_menu.h"
#include "tests/support/recording_screens.h"
#include "tests/support/study_folder.h"
#include "tests/support/test_services.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <memory>

using namespace tessera;

namespace {

class OpenNoteBook final : public QWidget, public SavesNoteBook {
public:
    bool SaveNoteBook() override {
        ++saves;
        return true;
    }
    int saves = 0;
};

} // namespace

class ButtonMenuTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<StudyFolder> m_folder;
    std::unique_ptr<TestServices> m_doubles;
    std::unique_ptr<RecordingScreenHost> m_host;
    std::unique_ptr<SessionState> m_state;
    std::unique_ptr<ScreenContext> m_context;
    std::unique_ptr<ButtonMenu> m_menu;

    ButtonMenu& open() {
        m_context =
            std::make_unique<ScreenContext>(ScreenContext{*m_state, m_doubles->services, *m_host});
        m_menu = std::make_unique<ButtonMenu>(*m_context);
        m_menu->show();
        return *m_menu;
    }
    template <class T> T* control(const char* name) const {
        T* found = m_menu->findChild<T*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("no control %s", name);
        return found;
    }
    QString text(const char* name) const { return control<QAbstractButton>(name)->text(); }
    bool enabled(const char* name) const { return control<QWidget>(name)->isEnabled(); }
    bool frameShown(int index) const {
        return !control<QGroupBox>(QStringLiteral("Frame1_%1").arg(index).toLatin1().constData())
                    ->isHidden();
    }
    int shownFrames() const {
        int shown = 0;
        for (int i = 0; i < 5; ++i)
            shown += frameShown(i) ? 1 : 0;
        return shown;
    }
    std::vector<ScreenCall> calls() const { return m_host->calls(); }

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<StudyFolder>();
        m_doubles = std::make_unique<TestServices>();
        m_host = std::make_unique<RecordingScreenHost>();
        m_state = std::make_unique<SessionState>();
        FillCatalogue(*m_state);
    }
    void cleanup() {
        m_menu.reset();
        m_context.reset();
        m_folder.reset();
    }

    void captionsFollowTheProgress() {
        m_state->TakeCounts[2] = 1;
        m_state->TakeCounts[5] = 3;
        open();
        QCOMPARE(m_menu->windowTitle(), QStringLiteral("Navigation Screen"));
        QCOMPARE(text("Option1_0"), QStringLiteral("Topic &Review Test"));
        QCOMPARE(text("Option1_2"), QStringLiteral("Report &Cards and Progress"));
        QCOMPARE(text("Command1_1"), QStringLiteral("Preliminary Evaluation - 2nd Drill"));
        QCOMPARE(text("Command1_4"), QStringLiteral("Financing Real Estate - Finished"));
        QVERIFY(!enabled("Command1_4"));
        QVERIFY(enabled("Command1_3"));
        QCOMPARE(text("Command4_2"), QStringLiteral("About O&rlanda Academy"));
        QCOMPARE(text("Command5_2"), QStringLiteral("User's &Guide"));
        QVERIFY(control<QRadioButton>("Option1_6")->isChecked());
        QCOMPARE(shownFrames(), 0);

        // A test and an exam broken off while the screen is open.
        m_state->TestPosition = 3;
        m_state->CurrentTopic = 2;
        m_state->TestType = 4;
        m_state->ExamPosition = 9;
        m_state->ExamType = 1;
        m_host->refreshNavigation(); // not placed with the host: nothing happens
        QCOMPARE(text("Option1_0"), QStringLiteral("Topic &Review Test"));
        m_host->place(ScreenName::ButtonMenu, m_menu.get());
        m_host->refreshNavigation();
        QCOMPARE(text("Option1_0"), QStringLiteral("Resume Topic 2 &Review, Retake Wild Guesses"));
        QCOMPARE(text("Option1_1"), QStringLiteral("Resume &Screening Exam, Screening Exam I"));
        QVERIFY(!enabled("Command2_0"));
        QVERIFY(!enabled("Command2_1"));
        QVERIFY(enabled("Command2_2"));
    }

    void screensThatAreMissingLeaveTheirButtonsDisabled() {
        m_host->setMissing(ScreenName::Quiz800);
        m_host->setMissing(ScreenName::Help);
        m_host->setMissing(ScreenName::ExamSet);
        open();
        for (int i = 0; i < 9; ++i)
            QVERIFY(!m_menu->findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(i))
                         ->isEnabled());
        QVERIFY(!enabled("Command5_0"));
        QVERIFY(!enabled("Option1_1"));
        QVERIFY2(enabled("Option1_0"), "the frame of topics still opens");
        QVERIFY(enabled("Command3_2"));
    }

    void optionsOpenFramesOrTests() {
        open();
        control<QRadioButton>("Option1_0")->click();
        QVERIFY(frameShown(0));
        QCOMPARE(shownFrames(), 1);
        control<QRadioButton>("Option1_3")->click();
        QVERIFY(frameShown(2));
        QCOMPARE(shownFrames(), 1);

        control<QRadioButton>("Option1_1")->click();
        QCOMPARE(shownFrames(), 0);
        QCOMPARE(calls(), (std::vector<ScreenCall>{{ScreenCallKind::Show, ScreenName::ExamSet}}));
        QVERIFY(control<QRadioButton>("Option1_6")->isChecked());

        m_host->clearCalls();
        m_state->ExamPosition = 5;
        m_state->TestPosition = 2;
        control<QRadioButton>("Option1_1")->click();
        control<QRadioButton>("Option1_0")->click();
        QCOMPARE(calls(), (std::vector<ScreenCall>{{ScreenCallKind::Show, ScreenName::ExamTest},
                                                   {ScreenCallKind::Show, ScreenName::Quiz800}}));
        QVERIFY2(shownFrames() == 0, "a suspended test opens at once, not the frame of topics");
    }

    void commandsOpenTheirScreens() {
        open();
        control<QRadioButton>("Option1_0")->click();
        control<QPushButton>("Command1_2")->click();
        QCOMPARE(m_state->CurrentTopic, 3);
        QVERIFY(control<QRadioButton>("Option1_6")->isChecked());
        QCOMPARE(shownFrames(), 0);

        control<QPushButton>("Command2_0")->click();
        control<QPushButton>("Command2_1")->click();
        control<QPushButton>("Command2_2")->click();
        control<QPushButton>("Command5_2")->click();
        QCOMPARE(m_state->HelpTopic, 17);
        QCOMPARE(calls(),
                 (std::vector<ScreenCall>{{ScreenCallKind::Show, ScreenName::Quiz800},
                                          {ScreenCallKind::Unload, ScreenName::QuizSumm},
                                          {ScreenCallKind::Show, ScreenName::QuizSumm},
                                          {ScreenCallKind::Unload, ScreenName::Scoring},
                                          {ScreenCallKind::Show, ScreenName::Scoring},
                                          {ScreenCallKind::ShowModal, ScreenName::Navigator},
                                          {ScreenCallKind::Unload, ScreenName::Help},
                                          {ScreenCallKind::Show, ScreenName::Help}}));
    }

    void theViewerOpenOnAnotherSectionGoesFirst() {
        open();
        QWidget viewer;
        m_host->place(ScreenName::Viewing, &viewer);
        m_state->ViewerSection = 8;
        control<QPushButton>("Command3_0")->click(); // the glossary is already open
        QCOMPARE(calls(), (std::vector<ScreenCall>{{ScreenCallKind::Show, ScreenName::Viewing}}));
        control<QPushButton>("Command4_4")->click();
        QCOMPARE(m_state->ViewerSection, 5);
        QCOMPARE(calls().at(1), (ScreenCall{ScreenCallKind::Unload, ScreenName::Viewing}));
    }

    void keyboardReachesEverything() {
        open();
        QVERIFY(QTest::qWaitForWindowActive(m_menu.get()));
        QTest::keyClick(m_menu.get(), Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(control<QRadioButton>("Option1_4")->isChecked()); // a mnemonic clicks late
        QVERIFY(frameShown(3));
        QTest::keyClick(m_menu.get(), Qt::Key_Escape);
        QCOMPARE(shownFrames(), 0);
        QVERIFY(control<QRadioButton>("Option1_6")->isChecked());

        QTest::keyClick(m_menu.get(), Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(frameShown(4));
        // Tab leads from the chosen option through the frame that is shown, and back.
        QStringList order{QApplication::focusWidget()->objectName()};
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(order, (QStringList{QStringLiteral("Option1_5"), QStringLiteral("Command5_0"),
                                     QStringLiteral("Command5_1"), QStringLiteral("Command5_2"),
                                     QStringLiteral("Option1_5")}));
        auto* about = control<QPushButton>("Command5_0");
        about->setFocus();
        QTest::keyClick(about, Qt::Key_Return);
        QCOMPARE(calls().back(), (ScreenCall{ScreenCallKind::Show, ScreenName::Help}));

        // Every control a screen reader meets has a name: its caption without the mnemonic.
        for (QAbstractButton* button : m_menu->findChildren<QAbstractButton*>()) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
            QVERIFY(accessible != nullptr);
            QString caption = button->text();
            caption.remove(QLatin1Char('&'));
            QCOMPARE(accessible->text(QAccessible::Name), caption);
            QVERIFY(!caption.isEmpty());
        }
    }

    void closingEndsTheProgramAndDeletesTheMarker() {
        m_folder->write("TesseraAppRunning", "");
        OpenNoteBook notebook;
        m_host->place(ScreenName::NoteBook, &notebook);
        m_state->NoteBookChanged = true;
        m_doubles->dialogs.answer(MessageAnswer::Yes);
        open();

        m_menu->setEnabled(false); // a test is running
        m_menu->close();
        QVERIFY(m_menu->isVisible());
        QVERIFY(m_doubles->dialogs.messages().empty());

        m_menu->setEnabled(true);
        m_menu->close();
        QCOMPARE(m_doubles->dialogs.titles(),
                 QStringList{QStringLiteral("Change to NoteBook Detected!")});
        QCOMPARE(m_doubles->dialogs.messages()[0].text,
                 QStringLiteral("Save your changes to disk?"));
        QCOMPARE(m_doubles->dialogs.messages()[0].icon, MessageIcon::None);
        QCOMPARE(notebook.saves, 1);
        QVERIFY(!m_folder->exists("TesseraAppRunning"));
        QVERIFY(m_host->programEnded());
    }

    void tooSmallADisplayIsRefused() {
        QVERIFY(CheckDisplaySize(m_doubles->dialogs, 800, 600));
        QVERIFY(!CheckDisplaySize(m_doubles->dialogs, 1024, 599));
        QVERIFY(!CheckDisplaySize(m_doubles->dialogs, 799, 768));
        QCOMPARE(m_doubles->dialogs.messages().size(), size_t{2});
        const ShownMessage& shown = m_doubles->dialogs.messages()[0];
        QCOMPARE(shown.title, QStringLiteral("Higher Display Resolution Required!"));
        QCOMPARE(shown.text,
                 QStringLiteral("Please set your display at a resolution of 800 by 600 (Super VGA) "
                                "or higher. A minimum resolution of 800 by 600 is required to "
                                "properly use the Review Software. To raise the setting, use My "
                                "Computer, followed by Display."));
        QCOMPARE(shown.icon, MessageIcon::Critical);
    }
};

QTEST_MAIN(ButtonMenuTest)
#include "button_menu_test.moc"
