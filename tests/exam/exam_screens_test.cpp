// The three exam screens driven as a user would: clicks, keys, the clock double moved on, and
// message boxes answered by script.

#include "core/run_journal.h"
#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"
#include "platform/desktop_keys.h"
#include "platform/rich_text_view.h"
#include "tests/support/screen_checks.h"
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
    static QStringList rows(QWidget* screen, const char* name) {
        QStringList texts;
        auto* list = Control<QListWidget>(screen, name);
        for (int r = 0; r < list->count(); ++r) {
            texts << list->item(r)->text();
        }
        return texts;
    }
    bool shown(ScreenName name) const {
        const auto& calls = f->screens.calls();
        return std::find(calls.begin(), calls.end(), ScreenCall{ScreenCallKind::Show, name}) !=
               calls.end();
    }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::instance()->installEventFilter(&enterKeys); }
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() { f.reset(); }

    void builderTakesACustomExam() {
        f->state.TakeCounts[10] = 3;
        ExamSet set(f->context);
        set.show();
        QVERIFY(Control<QRadioButton>(&set, "Option3_1")->isChecked()); // exam I is finished
        QCOMPARE(ControlsWithoutNames(set), QStringList());

        QTest::mouseClick(Control<QRadioButton>(&set, "Option3_2"), Qt::LeftButton);
        for (int i = 0; i < TopicCount; ++i) {
            auto* box = Control<QCheckBox>(&set, qPrintable(QStringLiteral("Check2_%1").arg(i)));
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
        }
        QCOMPARE(Control<QLabel>(&set, "Label2")->text(),
                 QStringLiteral("Items Available in Pool:    0"));
        QVERIFY(!Control<QPushButton>(&set, "Command1_0")->isEnabled());
        auto* topic3 = Control<QCheckBox>(&set, "Check2_2");
        QTest::mouseClick(topic3, Qt::LeftButton, {}, QPoint(6, topic3->height() / 2));
        QVERIFY(Control<QPushButton>(&set, "Command1_0")->isEnabled());
        Control<QListWidget>(&set, "List1_1")->setCurrentRow(3);
        click(&set, "Command1_0");
        QCOMPARE(f->state.ExamKind, int16_t(3));
        QCOMPARE(f->state.ExamItemCount, int16_t(4));
        QVERIFY(f->state.ExamTopics[3] && !f->state.ExamTopics[1]);
        QVERIFY(shown(ScreenName::ExamTest));
    }

    void traditionalExamByKeysAndFinishWithAnUncommittedAnswer() {
        f->state.ExamKind = f->state.ExamType = 1;
        f->state.ExamScrambled = false;
        f->state.ExamItemCount = 3;
        ExamTest exam(f->context);
        exam.show();
        QCOMPARE(exam.windowTitle(), QStringLiteral("Screening Exam I, Item 1 of 3"));
        QCOMPARE(ControlsWithoutNames(exam), QStringList());
        auto* text = Control<RichTextView>(&exam, "RichTextBox1");
        QVERIFY(text->toPlainText().contains(QStringLiteral("Question 1.1")));
        QApplication::setActiveWindow(&exam);
        QTest::keyClick(text, Qt::Key_C);
        QTest::keyClick(text, Qt::Key_A);
        QCOMPARE(Control<QLabel>(&exam, "Label1_0")->text(), QStringLiteral("Your Answer:  A"));
        QVERIFY(!Control<QPushButton>(&exam, "Command1_0")->isEnabled());
        QTRY_COMPARE(QApplication::focusWidget(), Control<QWidget>(&exam, "Command1_5"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // Enter presses Next
        QVERIFY(QFile::exists(QString::fromLatin1(JournalFile)));     // the committed answer
        QCOMPARE(rows(&exam, "List1_0"), QStringList{QStringLiteral("   1  A")});
        QCOMPARE(Control<QWidget>(&exam, "Frame1")->property("title").toString(),
                 QStringLiteral(" 1 Answered           2 Remaining"));
        auto* remaining = Control<QListWidget>(&exam, "List1_1");
        QTest::keyClick(remaining, Qt::Key_Space); // swallowed: no key search to another row
        QCOMPARE(remaining->currentRow(), 0);
        QTest::keyClick(remaining, Qt::Key_A);
        QCOMPARE(f->state.ExamAnswers[2], int16_t(1));

        // The clock stands still under the box: an hour there neither expires the exam nor
        // counts, and the clock runs on after Cancel.
        auto* clockLabel = Control<QLabel>(&exam, "Label1_1");
        const QString stoodAt = clockLabel->text();
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
        QVERIFY(!ticking);
        QVERIFY(timer->isActive());
        QTest::qWait(250);
        QCOMPARE(clockLabel->text(), stoodAt);

        f->clock.advanceSeconds(60);
        f->dialogs.answer(MessageAnswer::Ok);
        const std::size_t before = f->dialogs.messages().size();
        click(&exam, "Command1_8");
        QCOMPARE(f->dialogs.messages().size(), before + 1); // 1 of 3 right: no "Sorry!"
        QVERIFY(!exam.isVisible());
        QVERIFY(shown(ScreenName::Results));
        QCOMPARE(f->state.ExamAnswers[2], int16_t(0)); // the save wiped the uncommitted answer
        QCOMPARE(f->state.ExamPosition, int16_t(0));
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile)));
    }

    void structuredExamEndsAtTheLastConfirmAndTimeRunsOut() {
        f->state.ExamKind = f->state.ExamType = 1;
        f->state.ExamScrambled = false;
        f->state.ExamStructured = 1;
        f->state.ExamItemCount = 2;
        f->state.ExamMinutes = 5;
        {
            ExamTest exam(f->context);
            exam.show();
            QApplication::setActiveWindow(&exam);
            QCOMPARE(Control<QPushButton>(&exam, "Command1_6")->text(), QStringLiteral("Confirm"));
            QVERIFY(!Control<QListWidget>(&exam, "List1_1")->isEnabled());
            click(&exam, "Command1_0");
            click(&exam, "Command1_5");
            click(&exam, "Command1_6");
            QCOMPARE(exam.windowTitle(), QStringLiteral("Screening Exam I, Item 2 of 2"));
            f->clock.advanceSeconds(3 * 60 + 30);
            QTRY_COMPARE(Control<QLabel>(&exam, "Label1_1")->text(),
                         QStringLiteral("2-minute warning! 1:30"));
            f->clock.advanceSeconds(91);
            QTRY_COMPARE(Control<QLabel>(&exam, "Label1_1")->text(),
                         QStringLiteral("Time has expired!"));
            QVERIFY(!Control<QPushButton>(&exam, "Command1_1")->isEnabled());
            QTRY_VERIFY(Control<QPushButton>(&exam, "Command1_8")->hasFocus());
            auto* text = Control<RichTextView>(&exam, "RichTextBox1");
            QVERIFY(text->toPlainText().isEmpty());
            const int margin = text->rightMargin();        // taken from Shape3, the text's frame
            exam.resize(exam.width() + 40, exam.height()); // Form_Resize puts the item back
            QVERIFY(text->toPlainText().contains(QStringLiteral("Question 1.2")));
            QVERIFY(margin > 0 && text->rightMargin() > margin);
            exam.close();
        }
        QCOMPARE(f->state.ExamElapsed, 5 / 1440.0);
        QVERIFY(shown(ScreenName::Results)); // 1 of 2 right: 50%
    }

    void pictureComesAndGoesWithItsItem() {
        f->state.ExamKind = f->state.ExamType = 3;
        f->state.ExamScrambled = false;
        f->state.ExamItemCount = 3;
        f->state.ExamTopics.fill(false);
        f->state.ExamTopics[2] = true; // running numbers 5 to 7
        f->state.content.ItemPicture[5] = 1;
        ExamTest exam(f->context);
        const ScreenCall loadPicture{ScreenCallKind::Load, ScreenName::PictForm};
        const ScreenCall unloadPicture{ScreenCallKind::Unload, ScreenName::PictForm};
        QCOMPARE(f->screens.calls().back(), loadPicture);
        QVERIFY(Control<QPushButton>(&exam, "Command1_12")->isEnabled());
        click(&exam, "Command1_5");
        QCOMPARE(f->screens.calls().back(), unloadPicture);
        QVERIFY(!Control<QPushButton>(&exam, "Command1_12")->isEnabled());
        click(&exam, "Command1_6");
        QCOMPARE(f->screens.calls().back(), loadPicture); // shown again on a revisit
    }

    void resultsShowsTheSummarySortsAndAsksOnDone() {
        f->state.ExamKind = 3;
        f->state.ExamItemCount = 3;
        f->state.ExamScrambled = true;
        f->state.ExamItems = {};
        f->state.ExamItems[1] = 9;
        f->state.ExamItems[2] = 2;
        f->state.ExamItems[3] = 5;
        f->state.ExamAnswers[1] = 2;
        f->state.ExamAnswers[2] = 3;
        f->state.ExamUnsure[2] = 63;
        f->state.ExamScore = 1.0f / 3.0f;
        f->state.ExamPosition = 0;
        Results results(f->context);
        results.show();
        QVERIFY(Control<RichTextView>(&results, "RichTextBox1")->rightMargin() > 0); // Shape2
        QCOMPARE(ControlsWithoutNames(results), QStringList());
        QCOMPARE(Control<QLabel>(&results, "Label1_3")->text(),
                 QStringLiteral("Correct          1   33.3%"));
        QCOMPARE(rows(&results, "List1"),
                 (QStringList{QStringLiteral("  1   B    B"), QStringLiteral("  2   B    C?"),
                              QStringLiteral("  3   A    ")}));
        QCOMPARE(results.windowTitle(), QStringLiteral("Custom Built Results, Item 1"));
        click(&results, "Command1_0");
        QCOMPARE(rows(&results, "List1").at(2), QStringLiteral("  3   B    B"));
        QCOMPARE(Control<QListWidget>(&results, "List1")->currentRow(), 2);
        QVERIFY(!Control<QPushButton>(&results, "Command1_0")->isEnabled());

        // The print follows the sorted order, leaves out the key of an item not answered, and
        // is offered once.
        f->printer.dialogAnswer.reset();
        click(&results, "Command1_1");
        QVERIFY(Control<QPushButton>(&results, "Command1_1")->isEnabled());
        f->printer.dialogAnswer = PrintChoice{};
        click(&results, "Command1_1");
        const std::vector<QString> page = f->printer.pageText(1);
        QCOMPARE(page.at(0), QStringLiteral("     Custom Built Screening Exam Results"));
        QCOMPARE(page.at(7).trimmed(), QStringLiteral("1       B          C?          3       B"
                                                      "          B"));
        QCOMPARE(page.at(8).trimmed(), QStringLiteral("2"));
        QCOMPARE(page.at(16), QStringLiteral("  Correct          1   33.3%"));
        QVERIFY(!Control<QPushButton>(&results, "Command1_1")->isEnabled());
        f->dialogs.answer(MessageAnswer::Cancel);
        f->dialogs.answer(MessageAnswer::Ok);
        click(&results, "Command1_4");
        QVERIFY(
            f->dialogs.messages().back().text.startsWith(QStringLiteral("Note: You can review")));
        const ScreenCall unloadResults{ScreenCallKind::Unload, ScreenName::Results};
        QVERIFY(std::count(f->screens.calls().begin(), f->screens.calls().end(), unloadResults) ==
                0);
        f->state.ExamPosition = 7;
        click(&results, "Command1_4");
        QCOMPARE(f->state.ExamPosition, int16_t(0));
        QCOMPARE(f->screens.calls().back(), unloadResults);

        f->state.PrinterProblem = true;
        Results withoutPrinter(f->context);
        QVERIFY(!Control<QPushButton>(&withoutPrinter, "Command1_1")->isEnabled());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ExamScreensTest)
#include "exam_screens_test.moc"
