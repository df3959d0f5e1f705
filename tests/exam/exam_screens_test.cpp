// The three exam screens driven as a user would: clicks, keys, the clock double moved on, and
// message boxes answered by script.

#include "core/run_journal.h"
#include "exam/exam_set.h"
#include "exam/exam_test.h"
#include "exam/results.h"
#include "exam_fixture.h"
#include "platform/rich_text_view.h"
#include "tests/support/recording_screens.h"
#include "tests/support/test_services.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace tessera {

class ExamScreensTest : public QObject, TestServices {
    Q_OBJECT

private:
    SessionState state;
    RecordingScreenHost screens;
    ScreenContext context{state, services, screens};

    template <class T> static T* control(QWidget* screen, const char* name) {
        T* found = screen->findChild<T*>(QString::fromLatin1(name));
        if (found == nullptr) {
            qFatal("no control %s", name);
        }
        return found;
    }
    static void click(QWidget* screen, const char* name) {
        QTest::mouseClick(control<QPushButton>(screen, name), Qt::LeftButton);
    }
    static QStringList rows(QWidget* screen, const char* name) {
        QStringList texts;
        auto* list = control<QListWidget>(screen, name);
        for (int r = 0; r < list->count(); ++r) {
            texts << list->item(r)->text();
        }
        return texts;
    }
    static void expectAccessibleNames(QWidget* screen) {
        for (QWidget* child : screen->findChildren<QWidget*>()) {
            if (child->focusPolicy() != Qt::NoFocus && child->isVisibleTo(screen)) {
                QVERIFY2(!child->accessibleName().isEmpty(), qPrintable(child->objectName()));
            }
        }
    }
    bool shown(ScreenName name) const {
        const auto& calls = screens.calls();
        return std::find(calls.begin(), calls.end(), ScreenCall{ScreenCallKind::Show, name}) !=
               calls.end();
    }

private Q_SLOTS:
    void init() {
        state = SessionState{};
        testing::MakeCourse(state, {4, 3, 5, 2, 2, 2, 2, 2, 3}, {6, 5});
        state.PassingGrade = 70;
        screens.clearCalls();
        QFile::remove(QStringLiteral("TesseraConfig.MS"));
    }

    void builderTakesACustomExam() {
        state.TakeCounts[10] = 3;
        ExamSet set(context);
        set.show();
        QCOMPARE(control<QRadioButton>(&set, "Option3_0")->text(),
                 QStringLiteral("Exam I - Author Prepared - Finished"));
        QVERIFY(!control<QRadioButton>(&set, "Option3_0")->isEnabled());
        QVERIFY(control<QRadioButton>(&set, "Option3_1")->isChecked());
        expectAccessibleNames(&set);

        QTest::mouseClick(control<QRadioButton>(&set, "Option3_2"), Qt::LeftButton);
        for (int i = 0; i < TopicCount; ++i) {
            auto* box = control<QCheckBox>(&set, qPrintable(QStringLiteral("Check2_%1").arg(i)));
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
        }
        QCOMPARE(control<QLabel>(&set, "Label2")->text(),
                 QStringLiteral("Items Available in Pool:    0"));
        QVERIFY(!control<QPushButton>(&set, "Command1_0")->isEnabled());
        auto* topic3 = control<QCheckBox>(&set, "Check2_2");
        QTest::mouseClick(topic3, Qt::LeftButton, {}, QPoint(6, topic3->height() / 2));
        QVERIFY(control<QPushButton>(&set, "Command1_0")->isEnabled());
        control<QListWidget>(&set, "List1_1")->setCurrentRow(3);
        click(&set, "Command1_0");
        QCOMPARE(state.ExamKind, int16_t(3));
        QCOMPARE(state.ExamItemCount, int16_t(4));
        QVERIFY(state.ExamTopics[3] && !state.ExamTopics[1]);
        QVERIFY(shown(ScreenName::ExamTest));
    }

    void traditionalExamByKeysAndFinishWithAnUncommittedAnswer() {
        state.ExamKind = state.ExamType = 1;
        state.ExamScrambled = false;
        state.ExamItemCount = 3;
        ExamTest exam(context);
        exam.show();
        QCOMPARE(exam.windowTitle(), QStringLiteral("Screening Exam I, Item 1 of 3"));
        expectAccessibleNames(&exam);
        auto* text = control<RichTextView>(&exam, "RichTextBox1");
        QVERIFY(text->toPlainText().contains(QStringLiteral("Question 1.1")));
        QTest::keyClick(text, Qt::Key_C);
        QTest::keyClick(text, Qt::Key_A);
        QCOMPARE(control<QLabel>(&exam, "Label1_0")->text(), QStringLiteral("Your Answer:  A"));
        QVERIFY(!control<QPushButton>(&exam, "Command1_0")->isEnabled());
        click(&exam, "Command1_5");
        QVERIFY(QFile::exists(QString::fromLatin1(JournalFile))); // the committed answer
        QCOMPARE(rows(&exam, "List1_0"), QStringList{QStringLiteral("   1  A")});
        QCOMPARE(control<QWidget>(&exam, "Frame1")->property("title").toString(),
                 QStringLiteral(" 1 Answered           2 Remaining"));
        QTest::keyClick(control<QListWidget>(&exam, "List1_1"), Qt::Key_A);
        QCOMPARE(state.ExamAnswers[2], int16_t(1));

        clock.advanceSeconds(60);
        dialogs.answer(MessageAnswer::Ok);
        const std::size_t before = dialogs.messages().size();
        click(&exam, "Command1_8");
        QCOMPARE(dialogs.messages().size(), before + 1); // 1 of 3 right: no "Sorry!"
        QVERIFY(
            dialogs.messages().back().text.startsWith(QStringLiteral("You failed to answer 2 ")));
        QVERIFY(!exam.isVisible());
        QVERIFY(shown(ScreenName::Results));
        QCOMPARE(state.ExamAnswers[2], int16_t(0)); // the save wiped the uncommitted answer
        QCOMPARE(state.ExamPosition, int16_t(0));
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile)));
    }

    void structuredExamEndsAtTheLastConfirmAndTimeRunsOut() {
        state.ExamKind = state.ExamType = 1;
        state.ExamScrambled = false;
        state.ExamStructured = 1;
        state.ExamItemCount = 2;
        state.ExamMinutes = 5;
        {
            ExamTest exam(context);
            exam.show();
            QApplication::setActiveWindow(&exam);
            QCOMPARE(control<QPushButton>(&exam, "Command1_6")->text(), QStringLiteral("Confirm"));
            QVERIFY(!control<QListWidget>(&exam, "List1_1")->isEnabled());
            click(&exam, "Command1_0");
            click(&exam, "Command1_5");
            click(&exam, "Command1_6");
            QCOMPARE(exam.windowTitle(), QStringLiteral("Screening Exam I, Item 2 of 2"));
            clock.advanceSeconds(3 * 60 + 30);
            QTRY_COMPARE(control<QLabel>(&exam, "Label1_1")->text(),
                         QStringLiteral("2-minute warning! 1:30"));
            clock.advanceSeconds(91);
            QTRY_COMPARE(control<QLabel>(&exam, "Label1_1")->text(),
                         QStringLiteral("Time has expired!"));
            QVERIFY(!control<QPushButton>(&exam, "Command1_1")->isEnabled());
            QTRY_VERIFY(control<QPushButton>(&exam, "Command1_8")->hasFocus());
            exam.close();
        }
        QCOMPARE(state.ExamElapsed, 5 / 1440.0);
        QVERIFY(shown(ScreenName::Results)); // 1 of 2 right: 50%
    }

    void pictureComesAndGoesWithItsItem() {
        state.ExamKind = state.ExamType = 3;
        state.ExamScrambled = false;
        state.ExamItemCount = 3;
        state.ExamTopics.fill(false);
        state.ExamTopics[2] = true; // running numbers 5 to 7
        state.content.ItemPicture[5] = 1;
        ExamTest exam(context);
        const ScreenCall loadPicture{ScreenCallKind::Load, ScreenName::PictForm};
        const ScreenCall unloadPicture{ScreenCallKind::Unload, ScreenName::PictForm};
        QCOMPARE(screens.calls().back(), loadPicture);
        QVERIFY(control<QPushButton>(&exam, "Command1_12")->isEnabled());
        click(&exam, "Command1_5");
        QCOMPARE(screens.calls().back(), unloadPicture);
        QVERIFY(!control<QPushButton>(&exam, "Command1_12")->isEnabled());
        click(&exam, "Command1_6");
        QCOMPARE(screens.calls().back(), loadPicture); // shown again on a revisit
    }

    void resultsShowsTheSummarySortsAndAsksOnDone() {
        state.ExamKind = 3;
        state.ExamItemCount = 3;
        state.ExamScrambled = true;
        state.ExamItems = {};
        state.ExamItems[1] = 9;
        state.ExamItems[2] = 2;
        state.ExamItems[3] = 5;
        state.ExamAnswers[1] = 2;
        state.ExamAnswers[2] = 3;
        state.ExamUnsure[2] = 63;
        state.ExamScore = 1.0f / 3.0f;
        state.ExamPosition = 0;
        Results results(context);
        expectAccessibleNames(&results);
        QCOMPARE(control<QLabel>(&results, "Label1_3")->text(),
                 QStringLiteral("Correct          1   33.3%"));
        QCOMPARE(rows(&results, "List1"),
                 (QStringList{QStringLiteral("  1   B    B"), QStringLiteral("  2   B    C?"),
                              QStringLiteral("  3   A    ")}));
        QCOMPARE(results.windowTitle(), QStringLiteral("Custom Built Results, Item 1"));
        QVERIFY(!control<QPushButton>(&results, "Command1_1")->isEnabled());
        click(&results, "Command1_0");
        QCOMPARE(rows(&results, "List1").at(2), QStringLiteral("  3   B    B"));
        QCOMPARE(control<QListWidget>(&results, "List1")->currentRow(), 2);
        QVERIFY(!control<QPushButton>(&results, "Command1_0")->isEnabled());
        dialogs.answer(MessageAnswer::Cancel);
        dialogs.answer(MessageAnswer::Ok);
        click(&results, "Command1_4");
        QVERIFY(dialogs.messages().back().text.startsWith(QStringLiteral("Note: You can review")));
        const ScreenCall unloadResults{ScreenCallKind::Unload, ScreenName::Results};
        QVERIFY(std::count(screens.calls().begin(), screens.calls().end(), unloadResults) == 0);
        state.ExamPosition = 7;
        click(&results, "Command1_4");
        QCOMPARE(state.ExamPosition, int16_t(0));
        QCOMPARE(screens.calls().back(), unloadResults);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ExamScreensTest)
#include "exam_screens_test.moc"
