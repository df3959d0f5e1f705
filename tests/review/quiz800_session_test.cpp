// Quiz800 at the grain of the whole test: a clean run to the end with its "Finished" box, when a
// drill counts, breaking off and resuming, closing the window, and retakes. Checks what reaches
// the file.

#include "core/button_menu.h"
#include "core/progress_file.h"
#include "core/run_journal.h"
#include "quiz800_screen.h"
#include "review/item_scoring.h"
#include "review/review_test.h"
#include "tests/support/faulty_files.h"

#include <QFile>
#include <QProgressBar>
#include <QRadioButton>

namespace tessera {

class Quiz800SessionTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;

    std::unique_ptr<Quiz800Driver> open(int topic) { return OpenQuiz(*f, topic); }

    // A later run: a fresh session that restores what the progress file holds.
    void startNewRun() {
        f->state = SessionState{};
        FillReviewCourse(f->state);
        f->state.PassingGrade = 70;
        const ProgressHeader header = ReadProgressHeader();
        for (int i = 1; i <= TakeCounterCount; ++i)
            f->state.TakeCounts[i] = header.TakeCounts[i];
        RestoreSuspended(f->state);
    }

    // Answers positions up to the one given right at the first try, stopping on it revealed.
    static void answerThrough(Quiz800Driver& quiz, int last) {
        while (true) {
            quiz.answerRight();
            if (quiz.state().TestPosition >= last)
                return;
            quiz.next();
        }
    }

    // A first drill of 100 items standing revealed at its last item with this tally.
    void resumeAtTheEnd(int right, int wrong) {
        f->state.CurrentTopic = 1;
        f->state.TestType = AllItemsTest;
        f->state.TestItemCount = 100;
        for (int p = 1; p <= 100; ++p) {
            f->state.TestItems[p] = static_cast<int16_t>((p - 1) % 6 + 1);
            f->state.TestMisses[p] = p <= wrong ? 1 : 0;
        }
        f->state.TestTally = {0, static_cast<int16_t>(right), static_cast<int16_t>(wrong),
                              static_cast<int16_t>(100 + wrong), 0};
        f->state.TestPosition = 100;
        f->state.TestFurthest = 100;
    }

private Q_SLOTS:
    void init() {
        f = std::make_unique<ScreenFixture>();
        FillReviewCourse(f->state);
    }
    void cleanup() { f.reset(); }

    void cleanRunScoresEveryItemAndEndsWithThePassedMessageAndALogEntry() {
        auto quiz = open(2);
        for (int position = 1; position <= 3; ++position) {
            const char letter = static_cast<char>('A' + quiz->right());
            quiz->answerRight();
            QCOMPARE(quiz->label("Label2"), QStringLiteral("<%1> is the best choice.").arg(letter));
            QCOMPARE(quiz->labelColour("Label2"), int(RightColour));
            QVERIFY(quiz->documentText().contains(QStringLiteral("Explanation")));
            QCOMPARE(quiz->button(7)->text(), QStringLiteral("&Break"));
            QVERIFY(!quiz->button(5)->isEnabled());
            QCOMPARE(quiz->button(11)->isEnabled(), position > 1);
            QCOMPARE(quiz->button(6)->text(),
                     position == 3 ? QStringLiteral("&Done") : QStringLiteral("&Next"));
            if (position < 3)
                quiz->next();
        }
        QCOMPARE(quiz->screen().findChild<QProgressBar*>()->value(), 100);
        const QStringList panel = {quiz->label("Label3"), quiz->label("Label4"),
                                   quiz->label("Label5"), quiz->label("Label6")};
        QCOMPARE(panel.join(u'|'), QStringLiteral("Right: 3|Wrong: 0|Tries: 3|100.0%"));
        QCOMPARE(quiz->labelColour("Label6"), int(PassingColour));
        QVERIFY(quiz->screen()
                    .findChild<QLabel*>(QStringLiteral("HandShake"))
                    ->isVisibleTo(&quiz->screen()));
        f->dialogs.answer(MessageAnswer::Ok);
        quiz->next();
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& box = f->dialogs.messages().front();
        QCOMPARE(box.title, QStringLiteral("Finished"));
        QCOMPARE(box.text, QStringLiteral("Congratulations! You passed this review test.\r\n"
                                          "You missed 0 questions."));
        QCOMPARE(box.icon, MessageIcon::Exclamation);
        QCOMPARE(box.buttons, MessageButtons::OkCancel);
        QVERIFY(!quiz->screen().isVisible());

        QCOMPARE(f->state.TakeCounts[2], 1);
        QCOMPARE(f->state.TestPosition, 0);
        const ProgressHeader header = ReadProgressHeader();
        QCOMPARE(header.LogCodes[1], uint8_t{2});
        QCOMPARE(header.LogScores[1], 1.0F);
        QCOMPARE(header.TakeCounts[2], uint8_t{1});
        QCOMPARE(header.SuspendedTestRecord, uint8_t{0});
        const std::vector<ReviewTestRecord> records = ReadReviewTestRecords();
        QCOMPARE(records.size(), size_t{1});
        QCOMPARE(records[0].Topic, uint8_t{2});
        QCOMPARE(records[0].ItemCount, 3);
        QCOMPARE(records[0].Tally[3], 3);
        QCOMPARE(records[0].Position, 3); // the record keeps where the test ended
    }

    void cancelInTheFinishedBoxGoesOn() {
        auto quiz = open(2);
        answerThrough(*quiz, 3);
        f->dialogs.answer(MessageAnswer::Cancel);
        quiz->next();
        QCOMPARE(f->state.TestPosition, 3);
        QCOMPARE(f->state.TakeCounts[2], 0);
        QVERIFY(!QFile::exists(QString::fromLatin1(ProgressFile)));
        QCOMPARE(quiz->button(6)->text(), QStringLiteral("&Done"));
        f->dialogs.answer(MessageAnswer::Cancel);
        quiz->next(); // pressing Done again asks again
        QCOMPARE(f->dialogs.messages().size(), size_t{2});
    }

    void firstDrillCountsAtTheLowerOfSeventyAndTheGrade_data() {
        QTest::addColumn<int>("grade");
        QTest::addColumn<int>("right");
        QTest::addColumn<int>("drills");
        QTest::newRow("0.75 at a grade of 85") << 85 << 75 << 1;
        QTest::newRow("0.69 at a grade of 70") << 70 << 69 << 0;
    }

    void firstDrillCountsAtTheLowerOfSeventyAndTheGrade() {
        QFETCH(int, grade);
        QFETCH(int, right);
        QFETCH(int, drills);
        f->state.PassingGrade = grade;
        resumeAtTheEnd(right, 100 - right);
        Quiz800Driver quiz(*f);
        QCOMPARE(quiz.button(6)->text(), QStringLiteral("&Done"));
        f->dialogs.answer(MessageAnswer::Ok);
        quiz.next();
        QCOMPARE(f->dialogs.messages().front().text,
                 QStringLiteral("Sorry, you failed this review test.\r\nYou missed %1 questions.")
                     .arg(100 - right));
        QCOMPARE(f->dialogs.messages().front().icon, MessageIcon::Question);
        const ProgressHeader header = ReadProgressHeader();
        QCOMPARE(header.LogCodes[1], uint8_t{1});
        QCOMPARE(header.LogScores[1], static_cast<float>(right) / 100.0F);
        QCOMPARE(int(f->state.TakeCounts[1]), drills);
        QCOMPARE(int(header.TakeCounts[1]), drills);
    }

    void aFailedSaveOnDoneCountsTheDrillOnceWhenFinishedAgain() {
        resumeAtTheEnd(80, 20);
        {
            // The disk takes one record and no more.
            FaultyFiles full(FaultyFiles::Fault::DiskFull, 2);
            Quiz800Driver quiz(*f);
            f->dialogs.answer(MessageAnswer::Ok);
            quiz.next();
        }
        QCOMPARE(f->dialogs.titles().back(), QStringLiteral("Progress Not Saved"));
        QCOMPARE(f->state.TakeCounts[1], 0);
        QCOMPARE(f->state.TestPosition, 100); // still to be finished
        QCOMPARE(ReadProgressHeader().LogCodes[1], uint8_t{0});

        Quiz800Driver again(*f);
        f->dialogs.answer(MessageAnswer::Ok);
        again.next();
        const ProgressHeader header = ReadProgressHeader();
        QCOMPARE(header.LogCodes[1], uint8_t{1});
        QCOMPARE(header.LogCodes[2], uint8_t{0});
        QCOMPARE(f->state.TakeCounts[1], 1);
        QCOMPARE(header.TakeCounts[1], uint8_t{1});
    }

    void cancelOnTheFirstItemLeavesNoTrace() {
        auto quiz = open(1);
        quiz->click(quiz->wrong(0));
        QVERIFY(QFile::exists(QString::fromLatin1(JournalFile))); // written after every answer
        quiz->click(7);
        QCOMPARE(f->state.TestPosition, 0);
        QVERIFY(!QFile::exists(QString::fromLatin1(ProgressFile)));
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile)));
    }

    void breakAfterItemFiveThenResumeInANewRun() {
        auto quiz = open(1);
        answerThrough(*quiz, 5);
        const QChar fifth('A' + quiz->right());
        quiz->click(7);
        QCOMPARE(f->state.TestPosition, 5);
        QVERIFY(!QFile::exists(QString::fromLatin1(JournalFile))); // the break saved it all
        const ProgressHeader header = ReadProgressHeader();
        QCOMPARE(header.SuspendedTestRecord, uint8_t{2});
        QCOMPARE(ReadReviewTestRecords().front().Furthest, 5);

        quiz.reset();
        startNewRun();
        QCOMPARE(f->state.TestPosition, 5);
        Quiz800Driver resumed(*f);
        QCOMPARE(resumed.label("Label2"),
                 QStringLiteral("All Items Review Test\nItem 5 of 6  (Answer is %1)").arg(fifth));
        QVERIFY(resumed.button(11)->isEnabled());
        QVERIFY(resumed.button(6)->isEnabled());
        QCOMPARE(resumed.button(7)->text(), QStringLiteral("&Break"));
        QCOMPARE(resumed.label("Label3"), QStringLiteral("Right: 5"));
        QCOMPARE(resumed.label("Label6"), QStringLiteral("100.0%"));
        resumed.next();
        QCOMPARE(f->state.TestPosition, 6);
        QVERIFY(resumed.button(resumed.right())->isEnabled());
        QVERIFY(!resumed.button(6)->isEnabled());
    }

    void windowClosedOnAnOpenItemWithAWrongTry() {
        auto quiz = open(1);
        answerThrough(*quiz, 5);
        quiz->next();
        quiz->click(quiz->wrong(0));
        quiz->close();
        QCOMPARE(f->state.TestPosition, 5);
        QCOMPARE(f->state.TestFurthest, 5);
        const ReviewTestRecord record = ReadReviewTestRecords().front();
        QCOMPARE(record.Position, 5);
        QCOMPARE(record.Misses[6], uint8_t{1});
        QCOMPARE(record.Tally[2], 1);

        quiz.reset();
        Quiz800Driver resumed(*f); // the same run: the session still holds the test
        QCOMPARE(f->state.TestPosition, 5);
        resumed.next();
        resumed.answerRight(); // the wrong try still counts
        QCOMPARE(f->state.TestTally[1], 5);
        QCOMPARE(resumed.label("Label4"), QStringLiteral("Wrong: 1"));
    }

    void retakeWishesAndAClosedFirstItem() {
        std::vector<int16_t> items(100), misses(100, 1);
        for (size_t k = 0; k < items.size(); ++k)
            items[k] = static_cast<int16_t>(k % 6 + 1);
        BuildRetake(f->state, 1, items, misses, RetakeChoice::MissedQuestions);
        f->state.WishesLeft[1] = 1; // one 50:50 already spent on the first item
        {
            Quiz800Driver quiz(*f);
            QCOMPARE(quiz.label("Label2"), QStringLiteral("Retake of Missed Items\nItem 1 of 100"));
            QCOMPARE(quiz.button(7)->text(), QStringLiteral("&Break"));
            QVERIFY2(!quiz.button(7)->isEnabled(), "a retake cannot be cancelled");
            quiz.wish(0);
            QCOMPARE(quiz.offered(), (std::array<bool, 3>{true, true, true}));
            QCOMPARE(f->state.WishesLeft, (std::array<int16_t, 4>{0, 1, 2, 2}));
            quiz.click(quiz.wrong(0));
            quiz.close();
        }
        // Kept at its first item, still open, with the wrong try and the wishes.
        QCOMPARE(f->state.TestPosition, 1);
        QCOMPARE(f->state.TestFurthest, 0);
        const ReviewTestRecord record = ReadReviewTestRecords().front();
        QCOMPARE(record.TestType, uint8_t{RetakeMissedTest});
        QCOMPARE(record.Position, 1);
        QCOMPARE(record.WishesLeft[1], uint8_t{1});

        startNewRun();
        Quiz800Driver resumed(*f);
        QCOMPARE(resumed.label("Label2"), QStringLiteral("Retake of Missed Items\nItem 1 of 100"));
        QVERIFY(!resumed.button(6)->isEnabled());
        QCOMPARE(f->state.TestMisses[1], 1);
        resumed.answerRight();
        QCOMPARE(f->state.TestTally[1], 0);
        QVERIFY(resumed.button(7)->isEnabled());
    }

    void navigationFollowsTheClose() {
        ButtonMenu menu(f->context);
        f->screens.place(ScreenName::ButtonMenu, &menu);
        auto quiz = open(3);
        QVERIFY(!menu.isEnabled());
        quiz->answerRight();
        quiz->click(7);
        QCOMPARE(f->state.TestPosition, 1); // kept at its one answered item
        QCOMPARE(f->state.TestFurthest, 1);
        QVERIFY(menu.isEnabled());
        auto* resume = menu.findChild<QRadioButton*>(QStringLiteral("Option1_0"));
        QCOMPARE(resume->text(), QStringLiteral("Resume Topic 3 &Review, All Items"));
    }
};

} // namespace tessera

QTEST_MAIN(tessera::Quiz800SessionTest)
#include "quiz800_session_test.moc"
