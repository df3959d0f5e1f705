// The three exam screens driven as a user would: one run through each proves its wiring and keys.

#include "core/run_journal.h"
#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"
#include "platform/desktop_keys.h"
#include "platform/rich_text_view.h"
#include "tests/support/report_card_driver.h"
#include "tests/support/screen_fixture.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace tessera {

class ExamScreensTest : public QObject {
    Q_OBJECT

private:
    EnterPressesButton enterKeys; // as the application installs it
    std::unique_ptr<ScreenFixture> f;

    static void click(QWidget* screen, const char* name) {
        QTest::mouseClick(Control<QPushButton>(screen, name), Qt::LeftButton);
    }
    static bool enabled(QWidget* screen, const char* name) {
        return Control<QPushButton>(screen, name)->isEnabled();
    }
    static QString label(QWidget* screen, const char* name) {
        return Control<QLabel>(screen, name)->text();
    }
    ScreenCall lastCall() const { return f->screens.calls().back(); }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::instance()->installEventFilter(&enterKeys); }
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() { f.reset(); }

    void builderTakesACustomExam() {
        f->state.TakeCounts[10] = 3;
        f->state.ExamStructured = 1;
        ExamSet set(f->context);
        set.show();
        QVERIFY(Control<QRadioButton>(&set, "Option1_0")->isChecked()); // structured, as last taken
        QTest::mouseClick(Control<QRadioButton>(&set, "Option3_2"), Qt::LeftButton);
        for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 8, 2}) {
            ClickAtLeft(Control<QCheckBox>(&set, QStringLiteral("Check2_%1").arg(i)));
            if (i == 8) {
                QCOMPARE(label(&set, "Label2"), QStringLiteral("Items Available in Pool:    0"));
                QVERIFY(!enabled(&set, "Command1_0"));
            }
        }
        QVERIFY(enabled(&set, "Command1_0"));
        Control<QListWidget>(&set, "List1_1")->setCurrentRow(3);
        ClickAtLeft(Control<QRadioButton>(&set, "Option1_1")); // traditional this time
        click(&set, "Command1_0");
        QCOMPARE(f->state.ExamStructured, 0);
        QCOMPARE(f->state.ExamKind * 10 + f->state.ExamItemCount, 34);
        QVERIFY(f->state.ExamTopics[3] && !f->state.ExamTopics[1]);
        QCOMPARE(lastCall(), (ScreenCall{ScreenCallKind::Show, ScreenName::ExamTest}));
    }

    // Keys answer and Enter commits; the picture follows its item; the clock stands still under
    // a message box and runs out; finishing after that saves and shows the results.
    void examByKeysUntilTimeRunsOut() {
        SessionState& s = f->state;
        std::tie(s.ExamKind, s.ExamType, s.ExamScrambled, s.ExamItemCount, s.ExamMinutes) =
            std::tuple(3, 3, false, 3, 5);
        s.ExamTopics.fill(false);
        s.ExamTopics[2] = true; // running numbers 5 to 7
        s.content.ItemPicture[5] = 1;
        ExamTest exam(f->context);
        exam.show();
        QApplication::setActiveWindow(&exam);
        QCOMPARE(lastCall(), (ScreenCall{ScreenCallKind::Load, ScreenName::PictForm}));
        QVERIFY(enabled(&exam, "Command1_12"));
        auto* text = Control<RichTextView>(&exam, "RichTextBox1");
        QVERIFY(text->toPlainText().contains(QStringLiteral("Question 2.1")));
        QTest::keyClick(text, Qt::Key_C);
        QTest::keyClick(text, Qt::Key_A);
        QCOMPARE(label(&exam, "Label1_0"), QStringLiteral("Your Answer:  A"));
        QVERIFY(!enabled(&exam, "Command1_0"));
        QTRY_COMPARE(QApplication::focusWidget(), Control<QWidget>(&exam, "Command1_5"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // Enter presses Next
        QVERIFY(QFile::exists(QString::fromLatin1(JournalFile)));     // the committed answer
        QCOMPARE(ListRows(Control<QListWidget>(&exam, "List1_0")),
                 QStringList{QStringLiteral("   1  A")});
        QCOMPARE(Control<QWidget>(&exam, "Frame1")->property("title").toString(),
                 QStringLiteral(" 1 Answered           2 Remaining"));
        QCOMPARE(lastCall(), (ScreenCall{ScreenCallKind::Unload, ScreenName::PictForm}));
        QVERIFY(!enabled(&exam, "Command1_12"));
        auto* remaining = Control<QListWidget>(&exam, "List1_1");
        QTest::keyClick(remaining, Qt::Key_Space); // swallowed: no key search to another row
        QCOMPARE(remaining->currentRow(), 0);
        QTest::keyClick(remaining, Qt::Key_A);
        QCOMPARE(s.ExamAnswers[2], int16_t(1));

        // An hour under the box neither counts nor expires the exam; Cancel starts the clock.
        auto* timer = exam.findChild<QTimer*>(QStringLiteral("Timer1"));
        bool ticking = true;
        f->dialogs.whileOpen([&] {
            ticking = timer->isActive();
            f->clock.advanceSeconds(3600);
            QTest::qWait(250);
        });
        f->dialogs.answer(MessageAnswer::Cancel);
        click(&exam, "Command1_8");
        f->dialogs.whileOpen({});
        QVERIFY(!ticking && timer->isActive());
        f->clock.advanceSeconds(3 * 60);
        QTRY_COMPARE(label(&exam, "Label1_1"), QStringLiteral("Time Remaining: 0:02:00"));
        f->clock.advanceSeconds(30);
        QTRY_COMPARE(label(&exam, "Label1_1"), QStringLiteral("2-minute warning! 1:30"));
        f->clock.advanceSeconds(91);
        QTRY_COMPARE(label(&exam, "Label1_1"), QStringLiteral("Time has expired!"));
        QVERIFY(!enabled(&exam, "Command1_1"));
        QTRY_VERIFY(Control<QPushButton>(&exam, "Command1_8")->hasFocus());
        QVERIFY(text->toPlainText().isEmpty());
        const int margin = text->rightMargin();        // taken from Shape3, the text's frame
        exam.resize(exam.width() + 40, exam.height()); // Form_Resize puts the item back
        QVERIFY(text->toPlainText().contains(QStringLiteral("Question 2.2")));
        QVERIFY(margin > 0 && text->rightMargin() > margin);

        click(&exam, "Command1_8"); // no question once time is up
        QVERIFY(f->dialogs.messages().size() == 1 && !exam.isVisible());
        QCOMPARE(lastCall(), (ScreenCall{ScreenCallKind::Show, ScreenName::Results}));
        // The save wiped the uncommitted answer.
        QCOMPARE(s.ExamAnswers[2] + s.ExamPosition, 0);
        QCOMPARE(s.ExamElapsed, 5 / 1440.0);
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile)));
    }

    void resultsSortsPrintsOnceAndAsksOnDone() {
        SessionState& s = f->state;
        std::tie(s.ExamKind, s.ExamItemCount, s.ExamScrambled, s.ExamScore, s.ExamElapsed) =
            std::tuple(3, 3, true, 0.3f, (3600 + 5 * 60 + 9) / 86400.0);
        s.ExamItems = {0, 9, 2, 5};
        s.ExamAnswers = {0, 2, 3};
        s.ExamUnsure = {0, 0, 63, 63}; // a mark without an answer does not count
        Results results(f->context);
        results.show();
        QString summary;
        for (int i = 0; i < 6; ++i)
            summary += label(&results, qPrintable(QStringLiteral("Label1_%1").arg(i))) + u'|';
        QCOMPARE(summary, QStringLiteral("Answered         2|Not Answered     1|   Total         3|"
                                         "Correct          1   33.3%|Unsure           1   33.3%|"
                                         "Time Used     1:05:09|"));
        QVERIFY(Control<RichTextView>(&results, "RichTextBox1")->rightMargin() > 0); // Shape2
        QCOMPARE(results.windowTitle(), QStringLiteral("Custom Built Results, Item 1"));
        // Sorted, the list keeps the selected item: the third row now.
        click(&results, "Command1_0");
        QCOMPARE(ListRows(Control<QListWidget>(&results, "List1")).join(u'|'),
                 QStringLiteral("  1   B    C?|  2   A    |  3   B    B"));
        QCOMPARE(Control<QListWidget>(&results, "List1")->currentRow(), 2);
        QVERIFY(!enabled(&results, "Command1_0"));
        // The print is offered until one went out.
        f->printer.dialogAnswer.reset();
        click(&results, "Command1_1");
        QVERIFY(enabled(&results, "Command1_1"));
        f->printer.dialogAnswer = PrintChoice{};
        click(&results, "Command1_1");
        QVERIFY(!enabled(&results, "Command1_1"));
        f->dialogs.answer(MessageAnswer::Cancel);
        f->dialogs.answer(MessageAnswer::Ok);
        const ScreenCall unloaded{ScreenCallKind::Unload, ScreenName::Results};
        click(&results, "Command1_4");
        QCOMPARE(f->dialogs.messages().back().text,
                 QStringLiteral("Note: You can review the results of this test later using the "
                                "report card.\r\nPress O.K. to stop viewing scoring results or "
                                "Cancel to keep working."));
        QVERIFY(std::ranges::count(f->screens.calls(), unloaded) == 0);
        s.ExamPosition = 7;
        s.ExamScore = 0.29f;
        click(&results, "Command1_4");
        QVERIFY(f->dialogs.messages().back().text.startsWith(
            QStringLiteral("Note: You scored less than 30% correct. Therefore, the results of "
                           "this test have not been added to your report card.\r\n")));
        QCOMPARE(s.ExamPosition, int16_t(0));
        QCOMPARE(lastCall(), unloaded);

        s.PrinterProblem = true;
        Results withoutPrinter(f->context);
        QVERIFY(!enabled(&withoutPrinter, "Command1_1"));
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ExamScreensTest)
#include "exam_screens_test.moc"
