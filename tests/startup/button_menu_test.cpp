// The navigation screen driven as a user would: options, commands, keys, and the end.

#include "core/button_menu.h"
#include "tests/support/screen_fixture.h"

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

using Calls = std::vector<ScreenCall>;

ScreenCall Show(ScreenName name) {
    return {ScreenCallKind::Show, name};
}

ScreenCall Unload(ScreenName name) {
    return {ScreenCallKind::Unload, name};
}

ScreenCall ShowModal(ScreenName name) {
    return {ScreenCallKind::ShowModal, name};
}

} // namespace

class ButtonMenuTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<ButtonMenu> m_menu;

    ButtonMenu& open() {
        m_menu = std::make_unique<ButtonMenu>(f->context);
        m_menu->show();
        return *m_menu;
    }
    QString text(const char* name) const {
        return Control<QAbstractButton>(m_menu.get(), name)->text();
    }
    bool enabled(const char* name) const {
        return Control<QWidget>(m_menu.get(), name)->isEnabled();
    }
    void click(const char* name) const { Control<QAbstractButton>(m_menu.get(), name)->click(); }
    bool scrapChosen() const {
        return Control<QRadioButton>(m_menu.get(), "Option1_6")->isChecked();
    }
    // The five frames of commands, "x" for the one shown.
    QString frames() const {
        QString shown;
        for (int i = 0; i < 5; ++i)
            shown +=
                Control<QGroupBox>(m_menu.get(), QStringLiteral("Frame1_%1").arg(i))->isHidden()
                    ? u'-'
                    : u'x';
        return shown;
    }

private Q_SLOTS:
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() {
        m_menu.reset();
        f.reset();
    }

    void captionsFollowTheProgress() {
        f->state.TakeCounts[2] = 1;
        f->state.TakeCounts[5] = 3;
        open();
        QCOMPARE(text("Command1_1"), QStringLiteral("Preliminary Evaluation - 2nd Drill"));
        QCOMPARE(text("Command1_4"), QStringLiteral("Financing Real Estate - Finished"));
        QVERIFY(!enabled("Command1_4"));
        QVERIFY(enabled("Command1_3"));
        QVERIFY(scrapChosen());
        QCOMPARE(frames(), QStringLiteral("-----"));

        // A test and an exam broken off while the screen is open.
        f->state.TestPosition = 3;
        f->state.CurrentTopic = 2;
        f->state.TestType = 4;
        f->state.ExamPosition = 9;
        f->state.ExamType = 1;
        f->screens.refreshNavigation(); // not placed with the host: nothing happens
        QCOMPARE(text("Option1_0"), QStringLiteral("Topic &Review Test"));
        f->screens.place(ScreenName::ButtonMenu, m_menu.get());
        f->screens.refreshNavigation();
        QCOMPARE(text("Option1_0"), QStringLiteral("Resume Topic 2 &Review, Retake Wild Guesses"));
        QCOMPARE(text("Option1_1"), QStringLiteral("Resume &Screening Exam, Screening Exam I"));
        QVERIFY(!enabled("Command2_0"));
        QVERIFY(!enabled("Command2_1"));
        QVERIFY(enabled("Command2_2"));
    }

    void screensThatAreMissingLeaveTheirButtonsDisabled() {
        for (ScreenName missing : {ScreenName::Quiz800, ScreenName::Help, ScreenName::ExamSet})
            f->screens.setMissing(missing);
        open();
        for (const char* name : {"Command1_0", "Command1_8", "Command5_0", "Option1_1"})
            QVERIFY2(!enabled(name), name);
        QVERIFY2(enabled("Option1_0"), "the frame of topics still opens");
        QVERIFY(enabled("Command3_2"));
    }

    void optionsOpenFramesOrTests() {
        open();
        click("Option1_0");
        QCOMPARE(frames(), QStringLiteral("x----"));
        click("Option1_3");
        QCOMPARE(frames(), QStringLiteral("--x--"));
        click("Option1_1");
        QCOMPARE(frames(), QStringLiteral("-----"));
        QCOMPARE(f->screens.calls(), Calls{Show(ScreenName::ExamSet)});
        QVERIFY(scrapChosen());

        f->screens.clearCalls();
        f->state.ExamPosition = 5;
        f->state.TestPosition = 2;
        click("Option1_1");
        click("Option1_0");
        QCOMPARE(f->screens.calls(),
                 (Calls{Show(ScreenName::ExamTest), Show(ScreenName::Quiz800)}));
        QCOMPARE(frames(), QStringLiteral("-----")); // a suspended test opens at once
    }

    void commandsOpenTheirScreens() {
        open();
        click("Option1_0");
        click("Command1_2");
        QCOMPARE(f->state.CurrentTopic, 3);
        QVERIFY(scrapChosen());
        QCOMPARE(frames(), QStringLiteral("-----"));

        for (const char* name : {"Command2_0", "Command2_1", "Command2_2", "Command5_2"})
            click(name);
        QCOMPARE(f->state.HelpTopic, 17);
        QCOMPARE(f->screens.calls(),
                 (Calls{Show(ScreenName::Quiz800), Unload(ScreenName::QuizSumm),
                        Show(ScreenName::QuizSumm), Unload(ScreenName::Scoring),
                        Show(ScreenName::Scoring), ShowModal(ScreenName::Navigator),
                        Unload(ScreenName::Help), Show(ScreenName::Help)}));
    }

    void theViewerOpenOnAnotherSectionGoesFirst() {
        open();
        QWidget viewer;
        f->screens.place(ScreenName::Viewing, &viewer);
        f->state.ViewerSection = 8;
        click("Command3_0"); // the glossary is already open
        QCOMPARE(f->screens.calls(), Calls{Show(ScreenName::Viewing)});
        click("Command4_4");
        QCOMPARE(f->state.ViewerSection, 5);
        QCOMPARE(f->screens.calls().at(1), Unload(ScreenName::Viewing));
    }

    void keyboardReachesEverything() {
        open();
        QVERIFY(QTest::qWaitForWindowActive(m_menu.get()));
        QTest::keyClick(m_menu.get(), Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(frames(), QStringLiteral("---x-")); // a mnemonic clicks late
        QTest::keyClick(m_menu.get(), Qt::Key_Escape);
        QCOMPARE(frames(), QStringLiteral("-----"));
        QVERIFY(scrapChosen());

        QTest::keyClick(m_menu.get(), Qt::Key_H, Qt::AltModifier);
        QTRY_COMPARE(frames(), QStringLiteral("----x"));
        // Tab leads from the chosen option through the frame that is shown, and back.
        QStringList order{QApplication::focusWidget()->objectName()};
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            order << QApplication::focusWidget()->objectName();
        }
        QCOMPARE(order, (QStringList{QStringLiteral("Option1_5"), QStringLiteral("Command5_0"),
                                     QStringLiteral("Command5_1"), QStringLiteral("Command5_2"),
                                     QStringLiteral("Option1_5")}));
        auto* about = Control<QPushButton>(m_menu.get(), "Command5_0");
        about->setFocus();
        QTest::keyClick(about, Qt::Key_Return);
        QCOMPARE(f->screens.calls().back(), Show(ScreenName::Help));
    }

    void closingEndsTheProgramAndDeletesTheMarker() {
        f->folder.write("TesseraAppRunning", "");
        OpenNoteBook notebook;
        f->screens.place(ScreenName::NoteBook, &notebook);
        f->state.NoteBookChanged = true;
        f->dialogs.answer(MessageAnswer::Yes);
        open();

        m_menu->setEnabled(false); // a test is running
        m_menu->close();
        QVERIFY(m_menu->isVisible());
        QVERIFY(f->dialogs.messages().empty());

        m_menu->setEnabled(true);
        m_menu->close();
        QCOMPARE(f->dialogs.titles(), QStringList{QStringLiteral("Change to NoteBook Detected!")});
        QCOMPARE(f->dialogs.messages()[0].text, QStringLiteral("Save your changes to disk?"));
        QCOMPARE(f->dialogs.messages()[0].icon, MessageIcon::None);
        QCOMPARE(notebook.saves, 1);
        QVERIFY(!f->folder.exists("TesseraAppRunning"));
        QVERIFY(f->screens.programEnded());
    }

    void tooSmallADisplayIsRefused() {
        QVERIFY(CheckDisplaySize(f->dialogs, 800, 600));
        QVERIFY(!CheckDisplaySize(f->dialogs, 1024, 599));
        QVERIFY(!CheckDisplaySize(f->dialogs, 799, 768));
        QCOMPARE(f->dialogs.messages().size(), size_t{2});
        const ShownMessage& shown = f->dialogs.messages()[0];
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
