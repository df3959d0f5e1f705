// Scoring as the candidate meets it: the rows read from the progress file, sorting, the
// "Include" choices, erasing with the offer to save, a retake that the exam screen starts, the
// stored results, help, printing, and the controls' names and order.

#include "core/progress_file.h"
#include "exam/exam_session.h"
#include "reports/scoring.h"
#include "tests/reports/card_records.h"
#include "tests/support/report_card_driver.h"
#include "tests/support/screen_checks.h"
#include "tests/support/screen_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

namespace tessera {

namespace {

std::string Bytes(const RecordBytes& record) {
    return {reinterpret_cast<const char*>(record.data()), record.size()};
}

std::string Slice(const std::string& file, int record) {
    return file.substr(static_cast<size_t>((record - 1) * RecordSize), RecordSize);
}

ReviewTestRecord AReviewTest(int topic) {
    ReviewTestRecord test;
    test.Topic = static_cast<uint8_t>(topic);
    test.Date = "10-10-2026";
    test.ItemCount = 1;
    test.Items[1] = 3;
    return test;
}

// A custom exam of topics 2 and 7; its flag for 7 is 2, which reads as set.
ExamRecord ACustomExam(const std::string& date) {
    ExamRecord exam = CardExam(12, 3, date, 0.5F, {1, 7});
    exam.Topics[2] = 1;
    exam.Topics[7] = 2;
    return exam;
}

} // namespace

class ScoringScreenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<Scoring> card;

    void writeFile(const ProgressHeader& header, const std::vector<RecordBytes>& records) {
        std::string bytes = Bytes(EncodeHeader(header));
        for (const RecordBytes& record : records)
            bytes += Bytes(record);
        f->folder.write(ProgressFile, bytes);
    }
    // Records: 2 an exam of December, 3 a review test, 4 a custom exam of January, 5 an exam of
    // November, 6 the suspended review test. By text the January exam is the earliest.
    void writeThreeExamsAndTwoTests() {
        ProgressHeader header;
        header.SuspendedTestRecord = 6;
        f->state.SuspendedTestRecord = 6;
        writeFile(header, {EncodeExam(CardExam(10, 1, "12-20-2026", 0.875F, {1, 2, 3, 9})),
                           EncodeReviewTest(AReviewTest(3)), EncodeExam(ACustomExam("01-05-2027")),
                           EncodeExam(CardExam(11, 2, "11-02-2026", 0.6F, {69, 6, 0, 2, 64}, 3)),
                           EncodeReviewTest(AReviewTest(5))});
    }
    void open() {
        card = std::make_unique<Scoring>(f->context);
        card->show();
    }
    QStringList rows() const { return ListRows(card->List1); }
    void click(QAbstractButton* button) { ClickAtLeft(button); }
    void select(int row) { card->List1->setCurrentRow(row - 1); }
    void expectCalls(ScreenName name) {
        const std::vector<ScreenCall> expected = {{ScreenCallKind::Unload, ScreenName::Scoring},
                                                  {ScreenCallKind::Unload, name},
                                                  {ScreenCallKind::Show, name}};
        QVERIFY(f->screens.calls() == expected);
    }

private Q_SLOTS:
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() {
        card.reset();
        f.reset();
    }

    void listsEveryExamEarliestByTextAndSortsKeepingTheSelection() {
        writeThreeExamsAndTwoTests();
        open();
        QStringList heads; // the captions as given, though each shows in two lines
        for (int i : {0, 1, 2, 3, 4, 5, 6, 7, 11})
            heads << card->Label1[static_cast<size_t>(i)]->text();
        QCOMPARE(heads.join(QLatin1Char('|')),
                 QStringLiteral("Date Taken|Percent Correct|Questions Asked|Number Answered|Unsure "
                                "Answers|Scrambled Order|Allotted Time (min.)|Time Used "
                                "(h:m:s)|Exam Title"));
        QCOMPARE(rows().size(), 3);
        QVERIFY(rows()[0].startsWith(QStringLiteral("Custom        01-05-2027  50.0%")));
        QVERIFY(rows()[1].startsWith(QStringLiteral("Exam II       11-02-2026  60.0%")));
        QVERIFY(rows()[2].startsWith(QStringLiteral("Exam I        12-20-2026  87.5%")));
        QVERIFY(card->Option1[0]->isChecked() && card->Option2[0]->isChecked());
        QCOMPARE(card->List1->currentRow(), 0);
        QCOMPARE(card->Label1[8]->text(), QStringLiteral("Topics Covered:  2, 7"));
        QCOMPARE(card->Label1[10]->text(),
                 QStringLiteral("Total:       72.7%     11       10        2 "
                                "             585  04:31:30"));
        click(card->Option1[1]); // latest first: the custom exam goes last and stays selected
        QVERIFY(rows()[0].contains(QStringLiteral("12-20-2026")));
        QCOMPARE(card->List1->currentRow(), 2);
        select(1);
        click(card->Option1[3]); // questions asked: the five-item exam first
        QVERIFY(rows()[0].contains(QStringLiteral("11-02-2026")));
        QCOMPARE(card->List1->currentRow(), 1);
        QCOMPARE(card->Label1[8]->text(), QStringLiteral("Topics Covered: "));
    }

    void anEmptyCardOffersOnlyDoneAndHelpOnTopicThirteen() {
        open();
        QCOMPARE(card->List1->count(), 0);
        QCOMPARE(card->Label1[10]->text(), QStringLiteral("Total:"));
        QCOMPARE(card->Label1[8]->text(), QStringLiteral("Topics Covered: "));
        for (int i : {0, 1, 4, 5})
            QVERIFY(!card->Command1[i]->isEnabled());
        QVERIFY(!card->Frame1->isEnabled() && !card->Frame2->isEnabled());
        QVERIFY(card->Command1[2]->isEnabled());
        click(card->Command1[3]);
        QCOMPARE(f->state.HelpTopic, int16_t{13});
        const std::vector<ScreenCall> help = {{ScreenCallKind::Unload, ScreenName::Help},
                                              {ScreenCallKind::Show, ScreenName::Help}};
        QVERIFY(f->screens.calls() == help);
    }

    void includeChoicesFollowTheSelectedRow() {
        writeFile(ProgressHeader{}, {EncodeExam(CardExam(10, 1, "01-01-2027", 1.0F, {1, 2})),
                                     EncodeExam(CardExam(10, 1, "01-02-2027", 0.5F, {1, 64}))});
        open();
        QVERIFY(card->Option2[0]->isEnabled());
        QVERIFY(!card->Option2[1]->isEnabled() && !card->Option2[2]->isEnabled());
        select(2);
        click(card->Option2[1]);
        QVERIFY(card->Command1[4]->isEnabled());
        select(1); // 100%: "Missed Questions" stays chosen but blocked
        QVERIFY(card->Option2[1]->isChecked());
        QVERIFY(!card->Command1[4]->isEnabled());
        click(card->Option2[0]);
        QVERIFY(card->Command1[4]->isEnabled());
        // After three takes of exam I, whose full length is here 2, all of it is not offered again.
        f->state.TakeCounts[10] = 3;
        f->state.content.ItemCounts[1][2] = 2;
        select(2);
        QVERIFY(!card->Option2[0]->isEnabled());
        QVERIFY(card->Option2[1]->isEnabled());
    }

    void erasing_data() {
        QTest::addColumn<bool>("save");
        QTest::newRow("Yes") << true;
        QTest::newRow("No") << false;
    }
    void erasing() {
        QFETCH(bool, save);
        writeThreeExamsAndTwoTests();
        const std::string before = f->folder.read(ProgressFile);
        open();
        click(card->Command1[1]); // the January custom exam
        QCOMPARE(card->List1->currentRow(), 0);
        QVERIFY(rows()[0].contains(QStringLiteral("11-02-2026")));
        QVERIFY(f->dialogs.messages().empty()); // nothing asked yet
        QCOMPARE(f->folder.read(ProgressFile), before);
        f->dialogs.answer(save ? MessageAnswer::Yes : MessageAnswer::No);
        click(card->Command1[2]);

        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& asked = f->dialogs.messages()[0];
        QCOMPARE(asked.text, QStringLiteral("Save Changes to Report Card?"));
        QCOMPARE(asked.title, QStringLiteral("Exam Data Erased!"));
        QCOMPARE(asked.icon, MessageIcon::Exclamation);
        QCOMPARE(asked.buttons, MessageButtons::YesNo);
        QVERIFY(
            (f->screens.calls().back() == ScreenCall{ScreenCallKind::Unload, ScreenName::Scoring}));
        // Saved: the exams in the card's order, then the review tests in their old order; the
        // suspended one moves from record 6 to 2 + 2 + 1.
        std::string after = before;
        if (save) {
            after = Slice(before, 1) + Slice(before, 5) + Slice(before, 2) + Slice(before, 3) +
                    Slice(before, 6);
            after[5] = 5;
        }
        QVERIFY(f->folder.read(ProgressFile) == after);
        QCOMPARE(f->state.SuspendedTestRecord, int16_t(save ? 5 : 6));
    }

    void erasedTopicFlagsAreWrittenAsExactlyOne() {
        writeFile(ProgressHeader{}, {EncodeExam(ACustomExam("01-05-2027")),
                                     EncodeExam(CardExam(10, 1, "01-06-2027", 0.5F, {1}))});
        open();
        select(2);
        click(card->Command1[1]);
        f->dialogs.answer(MessageAnswer::Yes);
        click(card->Command1[2]);
        const auto exams = ReadExamRecords();
        QCOMPARE(exams.size(), size_t{1});
        QCOMPARE(exams[0].Topics, (std::array<uint8_t, 10>{0, 0, 1, 0, 0, 0, 0, 1, 0, 0}));
    }

    void retakeOfTheMissedItemsOpensAsANewExam() {
        writeThreeExamsAndTwoTests();
        f->state.ExamMinutes = 30;
        open();
        select(2);
        click(card->Option2[1]);
        click(card->Command1[4]);
        expectCalls(ScreenName::ExamTest);
        QVERIFY(f->dialogs.messages().empty());
        QCOMPARE(f->state.ExamType, int16_t{5});
        QCOMPARE(f->state.ExamMinutes, int16_t{195});
        // Exam II's items 3 to 7: wrong and unsure, wrong, none, right, right and unsure. The
        // exam screen opens the first three as a new exam, in this order.
        ExamSession session(f->state, f->clock, f->random);
        session.open();
        QCOMPARE(session.list(1).rows(), 3);
        QCOMPARE((QList<int>{f->state.ExamItems[1], f->state.ExamItems[2], f->state.ExamItems[3]}),
                 (QList<int>{3, 4, 5}));
        QCOMPARE(session.windowCaption(), std::string("Screening Exam II, Item 1 of 3"));
        QVERIFY(session.itemRtf().find("Question 1.3") != std::string::npos); // item 3 first
    }

    void viewResultsPutsTheStoredExamBackAndOpensResults() {
        writeThreeExamsAndTwoTests();
        open();
        click(card->Command1[1]); // an erasure is offered for saving first
        f->dialogs.answer(MessageAnswer::No);
        select(2); // exam I of December
        click(card->Command1[5]);
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        expectCalls(ScreenName::Results);
        QCOMPARE(f->state.ExamAnswers[4], int16_t{4}); // the December exam's fourth answer
    }

    void printingTakesTheListInItsOrderAndKeepsTheSelection() {
        writeThreeExamsAndTwoTests();
        f->state.PrintFontName = "Courier New";
        open();
        select(2);
        click(card->Command1[0]);
        const std::vector<QString> page = f->printer.pageText(1);
        QCOMPARE(page.size(), size_t{6 + 3 + 2 + 2});
        QCOMPARE(page[6], rows()[0]);
        QCOMPARE(page[7], QStringLiteral("          Topics Covered:  2, 7"));
        QCOMPARE(page[9], rows()[1]);
        QCOMPARE(page.back(), QString(13, QLatin1Char(' ')) + card->Label1[10]->text());
        QCOMPARE(card->List1->currentRow(), 1);
        f->state.PrinterProblem = true;
        open();
        QVERIFY(!card->Command1[0]->isEnabled());
    }

    void everyControlIsNamedAndTabFollowsTheScreen() {
        writeThreeExamsAndTwoTests();
        open();
        QCOMPARE(ControlsWithoutNames(*card), QStringList());
        const QList<QChar> keys = ButtonMnemonics(*card);
        QCOMPARE(keys.size(), 6);
        QCOMPARE(QSet<QChar>(keys.begin(), keys.end()).size(), keys.size());
        QStringList chain;
        QWidget* at = card->List1;
        do {
            if (at->focusPolicy() & Qt::TabFocus)
                chain << at->objectName();
            at = at->nextInFocusChain();
        } while (at != card->List1);
        QStringList expected{QStringLiteral("List1")};
        for (int i = 0; i < 5; ++i)
            expected << QStringLiteral("Option1_%1").arg(i);
        for (int i = 0; i < 3; ++i)
            expected << QStringLiteral("Option2_%1").arg(i);
        for (int i : {5, 4, 1, 0, 3, 2})
            expected << QStringLiteral("Command1_%1").arg(i);
        QCOMPARE(chain, expected);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ScoringScreenTest)
#include "scoring_screen_test.moc"
