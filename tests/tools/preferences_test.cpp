// The review test options dialog: what it shows, what it limits, and what it saves.

#include "tests/support/faulty_files.h"
#include "tests/support/screen_fixture.h"
#include "tools/preferences.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <memory>

namespace tessera {

class PreferencesTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;

    // A 940-byte header full of marks, so a stray write shows.
    std::string markedHeader() const {
        std::string bytes(940, '\x5A');
        bytes.replace(0, 5, std::string("\x01\x00\x01\x00\x46", 5));
        return bytes;
    }

private Q_SLOTS:
    void init() {
        // The old folder gives the current directory back before the new one takes it.
        f.reset();
        f = std::make_unique<ScreenFixture>();
        f->state.ScrambleQuestions = true;
        f->state.TimerActive = true;
        f->folder.write("TesseraConfig.MS", markedHeader());
    }

    void loadsTheOptionsWithNothingPending() {
        Preferences dialog(f->context);
        QVERIFY(dialog.Check1->isChecked());
        QVERIFY(!dialog.Check2->isChecked());
        QVERIFY(dialog.Check3->isChecked());
        QVERIFY(!dialog.Check5->isChecked());
        QVERIFY(!dialog.Picture1->isHidden());
        QVERIFY(dialog.Picture2->isHidden());
        QVERIFY(dialog.Text1->isHidden());
        QVERIFY(dialog.Label2[0]->isHidden());
        QCOMPARE(dialog.Text1->text(), QStringLiteral("70"));
        QVERIFY(!dialog.changesPending());
        dialog.Check2->click();
        QVERIFY(!dialog.Picture2->isHidden());
        QVERIFY(dialog.changesPending());
    }

    void gradeBoxKeepsWithinZeroToHundred_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("saved");
        QTest::newRow("above 100") << "150"
                                   << "100" << 100;
        QTest::newRow("negative") << "-5"
                                  << "0" << 0;
        QTest::newRow("fraction rounds") << "82.6"
                                         << "82.6" << 83;
        QTest::newRow("no number") << "abc"
                                   << "abc" << 0;
        QTest::newRow("leading blanks") << "  65"
                                        << "  65" << 65;
    }

    void gradeBoxKeepsWithinZeroToHundred() {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(int, saved);
        Preferences dialog(f->context);
        dialog.Check5->click();
        dialog.Text1->clear();
        QTest::keyClicks(dialog.Text1, typed);
        QCOMPARE(dialog.Text1->text(), shown);
        QVERIFY(dialog.changesPending());
        QCOMPARE(dialog.chosenOptions().PassingGrade, saved);
    }

    void saveWritesTheFiveOptionBytesAndNothingElse() {
        auto* dialog = new Preferences(f->context);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->Check1->click();
        dialog->Check2->click();
        dialog->Check5->click();
        dialog->Check5->click(); // off again: the grade hides but keeps what it holds
        dialog->Text1->setText(QStringLiteral("85"));
        QVERIFY(dialog->Text1->isHidden());
        QPointer<Preferences> watch(dialog);
        dialog->Command1->click();
        QTRY_VERIFY(watch.isNull());
        QVERIFY(f->dialogs.messages().empty());
        QVERIFY(!f->state.ScrambleQuestions && f->state.SoundOn && f->state.TimerActive);
        QVERIFY(!f->state.IncludeProgressReport);
        QCOMPARE(f->state.PassingGrade, 85);
        std::string expected = markedHeader();
        expected.replace(0, 5, std::string("\x00\x01\x01\x00\x55", 5));
        QVERIFY(f->folder.read("TesseraConfig.MS") == expected);
    }

    void aFailedSaveIsToldAndTheFileKept() {
        const std::string before = f->folder.read("TesseraConfig.MS");
        Preferences dialog(f->context);
        dialog.Check2->click();
        {
            FaultyFiles full(FaultyFiles::Fault::DiskFull, 1);
            dialog.Command1->click();
        }
        QCOMPARE(f->dialogs.titles(), QStringList{QStringLiteral("Preferences Not Saved")});
        QVERIFY(f->state.SoundOn); // for this run
        QVERIFY(f->folder.read("TesseraConfig.MS") == before);
    }

    void closingWithChangesAsksWhetherToSave() {
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            init();
            Preferences dialog(f->context);
            dialog.Check2->click();
            f->dialogs.answer(answer);
            dialog.Command2->click();
            QCOMPARE(f->dialogs.messages().size(), size_t{1});
            const ShownMessage& shown = f->dialogs.messages()[0];
            QCOMPARE(shown.text, QStringLiteral("Save your preference changes?"));
            QCOMPARE(shown.title, QStringLiteral("Change in Preferences Detected!"));
            QCOMPARE(shown.buttons, MessageButtons::YesNo);
            QCOMPARE(f->state.SoundOn, answer == MessageAnswer::Yes);
            QCOMPARE(f->folder.read("TesseraConfig.MS")[1], answer == MessageAnswer::Yes ? 1 : 0);
        }
    }

    void cancelWithoutChangesAsksNothing() {
        Preferences dialog(f->context);
        dialog.Command2->click();
        QVERIFY(f->dialogs.messages().empty());
        QVERIFY(f->folder.read("TesseraConfig.MS") == markedHeader());
    }

    void helpOpensTopicThreeAfresh() {
        Preferences dialog(f->context);
        dialog.Command3->click();
        QCOMPARE(f->state.HelpTopic, 3);
        const std::vector<ScreenCall> expected = {{ScreenCallKind::Unload, ScreenName::Help},
                                                  {ScreenCallKind::ShowModal, ScreenName::Help}};
        QCOMPARE(f->screens.calls(), expected);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::PreferencesTest)
#include "preferences_test.moc"
