// QuizSumm as the user meets it: the rows read from the progress file, sorting, erasing, a
// retake, help and the printed card. What every report card shares is driven on Scoring.

#include "core/progress_file.h"
#include "review/quiz_summ.h"
#include "tests/reports/card_records.h"
#include "tests/support/report_card_driver.h"
#include "tests/support/screen_fixture.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <fstream>
#include <memory>

namespace tessera {

namespace {

ExamRecord AnExam(int kind, int itemCount) {
    ExamRecord exam;
    exam.Kind = static_cast<uint8_t>(kind + 9);
    exam.Date = "10-10-2026";
    exam.ItemCount = static_cast<int16_t>(itemCount);
    return exam;
}

// The header, then the records in the order given; exams are told apart by their first byte.
void WriteProgressFile(const ProgressHeader& header, const std::vector<RecordBytes>& records) {
    std::ofstream file(ProgressFile, std::ios::binary | std::ios::trunc);
    const RecordBytes first = EncodeHeader(header);
    file.write(reinterpret_cast<const char*>(first.data()), RecordSize);
    for (const RecordBytes& record : records)
        file.write(reinterpret_cast<const char*>(record.data()), RecordSize);
}

std::string FileBytes() {
    std::ifstream file(ProgressFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

class QuizSummScreenTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<QuizSumm> card;

    // Record 2 a test of topic 3 in November, 3 an exam, 4 a test of topic 1 in January of the
    // next year, 5 the suspended exam. The earliest date by text is the January test.
    void writeTwoTestsAndTwoExams() {
        ProgressHeader header;
        header.SuspendedExamRecord = 5;
        f->state.SuspendedExamRecord = 5;
        WriteProgressFile(header,
                          {EncodeReviewTest(CardRecord(3, "11-20-2026", 0.5F, 1, {0, 2}, 12)),
                           EncodeExam(AnExam(1, 40)),
                           EncodeReviewTest(CardRecord(1, "01-05-2027", 0.5F, 1, {1, 0, 0, 0})),
                           EncodeExam(AnExam(2, 50))});
    }
    void open() {
        card = std::make_unique<QuizSumm>(f->context);
        card->show();
    }
    QStringList rows() const { return ListRows(card->List1); }
    void click(QAbstractButton* button) { ClickAtLeft(button); }
    void select(int row) { card->List1->setCurrentRow(row - 1); }

private Q_SLOTS:
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() {
        card.reset();
        f.reset();
    }

    void listsEveryReviewTestEarliestFirstAndSortsKeepingTheSelection() {
        writeTwoTestsAndTwoExams();
        open();
        QStringList heads; // the captions as given, though each shows in two lines
        for (QLabel* head : card->Label1)
            heads << head->text();
        QCOMPARE(heads.join(QLatin1Char('|')),
                 QStringLiteral("Test Type|Date Taken|Percent Correct|Questions Asked|Wild "
                                "Guesses|Tries Ratio|Scrambled Order|Time Used (h:m:s)"));
        const auto loaded = LoadCardRows(ReadReviewTestRecords());
        QCOMPARE(rows(), QStringList({QString::fromStdString(CardRowText(loaded[1])),
                                      QString::fromStdString(CardRowText(loaded[0]))}));
        QVERIFY(rows()[0].contains(QStringLiteral("01-05-2027")));
        // Totals are rounded row by row, so they follow the card's order.
        QCOMPARE(card->Label2->text(),
                 QString::fromStdString(CardTotalsText({loaded[1], loaded[0]})));
        QCOMPARE(card->List1->currentRow(), 0);
        QCOMPARE(card->Label3->text(),
                 QStringLiteral("Related Topic 1: ") +
                     QString::fromStdString(f->state.catalogue.TopicTitles[1]));
        select(2); // the November test of topic 3
        click(card->Option1[3]);
        QVERIFY(rows()[0].contains(QStringLiteral("01-05-2027")));
        QCOMPARE(card->List1->currentRow(), 1);
        click(card->Option1[4]); // 1 wild guess of 2 comes before 0 of 4
        QVERIFY(rows()[0].contains(QStringLiteral("11-20-2026")));
        QCOMPARE(card->List1->currentRow(), 0);
        QVERIFY(card->Label3->text().startsWith(QStringLiteral("Related Topic 3: ")));
    }

    void erasingThenYesRewritesTheFileAndTheExamsFollow() {
        writeTwoTestsAndTwoExams();
        open();
        click(card->Command1[1]); // the January test
        QCOMPARE(card->List1->count(), 1);
        QCOMPARE(card->List1->currentRow(), 0);
        f->dialogs.answer(MessageAnswer::Yes);
        click(card->Command1[2]);

        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& asked = f->dialogs.messages()[0];
        QCOMPARE(asked.text, QStringLiteral("Save Changes to Report Card?"));
        QCOMPARE(asked.title, QStringLiteral("Data Erased!"));
        QCOMPARE(asked.icon, MessageIcon::Exclamation);
        QCOMPARE(asked.buttons, MessageButtons::YesNo);
        QCOMPARE(FileBytes().size(), size_t{4 * RecordSize});
        const auto tests = ReadReviewTestRecords();
        QCOMPARE(tests.size(), size_t{1});
        QCOMPARE(tests[0].Date, std::string("11-20-2026"));
        QCOMPARE(tests[0].Items[2], int16_t{13});
        QCOMPARE(tests[0].Misses[2], uint8_t{2});
        const auto exams = ReadExamRecords();
        QCOMPARE(exams.size(), size_t{2});
        QCOMPARE(exams[1].ItemCount, int16_t{50});
        // The suspended exam moved from record 5 to record 4.
        QCOMPARE(f->state.SuspendedExamRecord, int16_t{4});
        QCOMPARE(ReadProgressHeader().SuspendedExamRecord, uint8_t{4});
        QVERIFY((f->screens.calls().back() ==
                 ScreenCall{ScreenCallKind::Unload, ScreenName::QuizSumm}));
    }

    void retakeOfMissedItemsOffersTheErasureFirstThenOpensQuiz800() {
        writeTwoTestsAndTwoExams();
        open();
        select(2); // topic 3, items 12 and 13, the second wild
        click(card->Option2[1]);
        card->List1->setCurrentRow(0);
        click(card->Command1[1]); // erases the January test; the November one is selected
        f->dialogs.answer(MessageAnswer::No);
        f->screens.clearCalls();
        click(card->Command1[4]);

        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        QCOMPARE(f->state.TestType, int16_t{RetakeMissedTest});
        QCOMPARE(f->state.CurrentTopic, int16_t{3});
        QCOMPARE(f->state.TestItemCount, int16_t{1});
        QCOMPARE(f->state.TestItems[1], int16_t{13});
        QCOMPARE(f->state.TestPosition, int16_t{1});
        QCOMPARE(f->state.WishesLeft[2], int16_t{1});
        const std::vector<ScreenCall> expected = {{ScreenCallKind::Unload, ScreenName::QuizSumm},
                                                  {ScreenCallKind::Show, ScreenName::Quiz800}};
        QVERIFY(f->screens.calls() == expected);
    }

    void helpOpensTopicSix() {
        open();
        click(card->Command1[3]);
        QCOMPARE(f->state.HelpTopic, int16_t{6});
    }

    // 55 rows bring the count to 62 after the last one: the rule and totals go on a new page.
    void printingBreaksThePageAfterLine61() {
        std::vector<RecordBytes> records;
        for (int i = 0; i < 55; ++i)
            records.push_back(
                EncodeReviewTest(CardRecord(1 + i % 9, "02-03-2026", 0.5F, 1, {0, 1})));
        WriteProgressFile(ProgressHeader{}, records);
        f->state.PrintFontName = "Courier New";
        open();
        select(7);
        f->printer.dialogAnswer.reset(); // Cancel prints nothing and leaves the focus
        card->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(card.get()));
        card->List1->setFocus();
        card->Command1[0]->click(); // as its access key would, the focus where it is
        QCOMPARE(f->printer.dialogsShown.size(), size_t{1});
        QVERIFY(f->printer.lines.empty());
        QTRY_COMPARE(QApplication::focusWidget(), card->List1);
        f->printer.dialogAnswer = PrintChoice{2, false};
        click(card->Command1[0]);

        QCOMPARE(f->printer.dialogsShown.back(), PrintDialogKind::Table);
        QCOMPARE(f->printer.jobsEnded, 1);
        const auto& lines = f->printer.lines;
        QCOMPARE(lines[1].text, card->windowTitle());
        QCOMPARE(lines[1].fontName, QStringLiteral("Courier New"));
        QCOMPARE(lines[1].fontSize, 10.0);
        QCOMPARE(lines[3].column, 20);
        QCOMPARE(lines[3].text, QStringLiteral("Date     Percent  Questions   Wild   Tries  "
                                               "Scrambled  Time Used"));
        QCOMPARE(lines[4].text, QStringLiteral("  Test Type        Taken    Correct    Asked   "
                                               "Guesses  Ratio    Order    (h:m:s)"));
        QCOMPARE(lines[5].text, QString(82, QLatin1Char('-')));
        QCOMPARE(lines[6].text, card->List1->item(0)->text());
        QCOMPARE(lines[6].column, 3);
        QCOMPARE(lines[60].page, 1);
        QCOMPARE(lines[60].text, card->List1->item(54)->text());
        const std::vector<QString> second = {
            QString(), card->windowTitle() + QStringLiteral(" (cont.)"), QString(),
            QString(17, QLatin1Char(' ')) + QString(65, QLatin1Char('-')),
            QString(17, QLatin1Char(' ')) + card->Label2->text()};
        QCOMPARE(f->printer.pageText(2), second);
        QCOMPARE(f->printer.pageText(3).front(), QString()); // the second copy
        QCOMPARE(lines.size(), size_t{2 * (61 + 5)});
        QCOMPARE(card->List1->currentRow(), 6);
        QTRY_COMPARE(QApplication::focusWidget(), card->Command1[2]);
    }
};

} // namespace tessera

QTEST_MAIN(tessera::QuizSummScreenTest)
#include "quiz_summ_screen_test.moc"
