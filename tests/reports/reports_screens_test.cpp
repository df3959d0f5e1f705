// The report screens as the candidate meets them: the two report cards over one progress file of
// exams and review tests, with a printed page of each, and Navigator with its page.

#include "core/progress_file.h"
#include "reports/navigator.h"
#include "reports/navigator_chart.h"
#include "reports/scoring.h"
#include "review/quiz_summ.h"
#include "tests/reports/card_records.h"
#include "tests/support/report_card_driver.h"
#include "tests/support/screen_fixture.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace tessera {

namespace {

// A printed line from "column:text|column:text", a character a column, counting from 1.
QString Line(const QString& texts) {
    QString line;
    for (const QString& text : texts.split(u'|'))
        line = line.leftJustified(text.section(u':', 0, 0).toInt() - 1) + text.section(u':', 1);
    return line;
}

std::string Bytes(const RecordBytes& record) {
    return {reinterpret_cast<const char*>(record.data()), record.size()};
}

// Records 2 to 6: exam I of December, a test of topic 3 of November (items 12 and 13, the second
// wild), an untimed custom exam of January over topics 2 and 7 (its flag for 7 is 2, which reads
// as set), exam II of November and a test of topic 1 of January; by text, January comes first.
// Totals round at each row, a half to even: by the latest date exam II's 2.5 right answers give
// 6 after exam I's 4, the November test's 2.5 tries give 2.
std::vector<RecordBytes> MixedRecords() {
    ExamRecord custom = CardExam(12, 3, "01-05-2027", 0.0F, {1, 7});
    custom.Topics[2] = 1;
    custom.Topics[7] = 2;
    custom.TimeLimit = custom.Scrambled = 0;
    return {EncodeExam(CardExam(10, 1, "12-20-2026", 0.875F, {1, 2, 3, 9})),
            EncodeReviewTest(CardRecord(3, "11-20-2026", 0.5F, 1, {0, 2}, 12)), EncodeExam(custom),
            EncodeExam(CardExam(11, 2, "11-02-2026", 0.5F, {69, 6, 0, 2, 64}, 3)),
            EncodeReviewTest(CardRecord(1, "01-05-2027", 0.25F, 1, {1, 0, 0, 0}))};
}

} // namespace

class ReportsScreensTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScreenFixture> f;
    std::unique_ptr<ReportCard> card;
    QLabel* topic = nullptr;
    std::unique_ptr<Navigator> navigator;

    void write(const std::vector<RecordBytes>& records, int suspendedTest = 0,
               int suspendedExam = 0) {
        ProgressHeader header;
        header.SuspendedTestRecord = static_cast<uint8_t>(suspendedTest);
        header.SuspendedExamRecord = static_cast<uint8_t>(suspendedExam);
        f->state.SuspendedTestRecord = static_cast<int16_t>(suspendedTest);
        f->state.SuspendedExamRecord = static_cast<int16_t>(suspendedExam);
        std::string bytes = Bytes(EncodeHeader(header));
        for (const RecordBytes& record : records)
            bytes += Bytes(record);
        f->folder.write(ProgressFile, bytes);
    }
    void open(bool scoring) {
        Scoring* exams = scoring ? new Scoring(f->context) : nullptr;
        card.reset(exams != nullptr ? static_cast<ReportCard*>(exams) : new QuizSumm(f->context));
        topic = exams != nullptr ? exams->Label1[8] : static_cast<QuizSumm*>(card.get())->Label3;
        card->show();
    }
    // The rows' dates, the row selected (from 1) and the topic label.
    QString view() const {
        QStringList rows;
        for (const QString& row : ListRows(card->List1))
            rows << row.mid(row.indexOf(u'-') - 2, 10);
        return rows.join(u'|') + u" @"_s + QString::number(card->List1->currentRow() + 1) + u' ' +
               topic->text();
    }
    void click(QAbstractButton* button) { ClickAtLeft(button); }
    void select(int row) { card->List1->setCurrentRow(row - 1); }
private Q_SLOTS:
    void init() { f = std::make_unique<ScreenFixture>(); }
    void cleanup() {
        card.reset();
        navigator.reset();
        f.reset();
    }

    // Leaving with Yes writes the kept rows in the card's order, then the other kind's records in
    // their old order, the suspended one of them renumbered.
    void erasing_data() {
        QTest::addColumn<bool>("scoring");
        QTest::addColumn<bool>("save");
        QTest::addColumn<QList<int>>("records"); // the old records in their new order
        QTest::addColumn<int>("suspended");      // the other kind's suspended record after
        QTest::newRow("Scoring, Yes") << true << true << QList<int>{1, 5, 2, 3, 6} << 5;
        QTest::newRow("Scoring, No") << true << false << QList<int>{1, 2, 3, 4, 5, 6} << 6;
        QTest::newRow("QuizSumm, Yes") << false << true << QList<int>{1, 3, 2, 4, 5} << 3;
    }
    void erasing() {
        QFETCH(bool, scoring);
        QFETCH(bool, save);
        QFETCH(QList<int>, records);
        QFETCH(int, suspended);
        open(scoring); // no progress file yet: an empty card offers only Done and Help
        QVERIFY(!card->Frame1->isEnabled() && !card->Command1[0]->isEnabled() &&
                !card->Command1[1]->isEnabled() && card->Command1[2]->isEnabled() &&
                card->Command1[3]->isEnabled());
        write(MixedRecords(), scoring ? 6 : 0, scoring ? 0 : 2);
        const std::string before = f->folder.read(ProgressFile);
        open(scoring);
        click(card->Command1[1]); // the January row; the next one down is selected
        QCOMPARE(view(), scoring
                             ? u"11-02-2026|12-20-2026 @1 Topics Covered: "_s
                             : u"11-20-2026 @1 Related Topic 3: Real Property and Laws Relating "
                               "to Ownership"_s);
        QCOMPARE(f->folder.read(ProgressFile), before); // nothing asked or written yet
        QVERIFY(f->dialogs.messages().empty());
        f->dialogs.answer(save ? MessageAnswer::Yes : MessageAnswer::No);
        click(card->Command1[2]);

        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        const ShownMessage& asked = f->dialogs.messages()[0];
        QCOMPARE(asked.title + u'|' + asked.text,
                 (scoring ? u"Exam "_s : QString()) +
                     u"Data Erased!|Save Changes to Report Card?"_s);
        QCOMPARE(f->screens.callsText(), scoring ? "unload Scoring" : "unload QuizSumm");
        std::string after;
        for (int record : records)
            after += before.substr(static_cast<size_t>((record - 1) * RecordSize), RecordSize);
        after[scoring ? 5 : 6] = static_cast<char>(suspended);
        QVERIFY(f->folder.read(ProgressFile) == after);
        QCOMPARE(int(scoring ? f->state.SuspendedTestRecord : f->state.SuspendedExamRecord),
                 suspended);
    }

    void quizSummRetakeOffersTheErasureFirstThenOpensQuiz800() {
        write(MixedRecords());
        open(false);
        select(2); // topic 3, items 12 and 13, the second wild
        click(card->Option2[1]);
        select(1);
        click(card->Command1[1]); // erases the January test; the November one is selected
        f->dialogs.answer(MessageAnswer::No);
        click(card->Command1[3]);
        QCOMPARE(int(f->state.HelpTopic), 6);
        QCOMPARE(f->screens.callsText(), "unload Help, show Help");
        f->screens.clearCalls();
        click(card->Command1[4]);
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        QCOMPARE(f->screens.callsText(), "unload QuizSumm, show Quiz800");
        const SessionState& s = f->state;
        QCOMPARE((QList<int>{s.TestType, s.CurrentTopic, s.TestItemCount, s.TestItems[1],
                             s.TestPosition, s.WishesLeft[2]}),
                 (QList<int>{RetakeMissedTest, 3, 1, 13, 1, 1}));
    }

    // An erasure is offered for saving first, and only once.
    void scoringResultsThenARetakeOfTheMissedItems() {
        write(MixedRecords());
        open(true);
        click(card->Command1[1]);
        f->dialogs.answer(MessageAnswer::No);
        // Exam II's items 3 to 7: wrong and unsure, wrong, none, right, right and unsure.
        click(card->Command1[5]);
        QCOMPARE(f->screens.callsText(), "unload Scoring, unload Results, show Results");
        const SessionState& s = f->state;
        QCOMPARE((QList<int>{s.ExamAnswers[1], s.ExamAnswers[3], s.ExamAnswers[5], s.ExamUnsure[1],
                             s.ExamUnsure[4], s.ExamUnsure[5], s.ExamItems[5]}),
                 (QList<int>{1, 0, 1, UnsureMark, 0, UnsureMark, 7}));
        f->screens.clearCalls();
        click(card->Option2[1]);
        click(card->Command1[4]);
        QCOMPARE(f->dialogs.messages().size(), size_t{1});
        QCOMPARE(f->screens.callsText(), "unload Scoring, unload ExamTest, show ExamTest");
        QCOMPARE((QList<int>{s.ExamType, s.ExamItemCount}), (QList<int>{5, 3}));
    }

    // Cancel prints nothing and leaves the focus where it was. A print of the rows by the latest
    // date first keeps the selection, which the sort moved with its January row, and puts the
    // focus on Done.
    void printing_data() {
        QTest::addColumn<bool>("scoring");
        QTest::addColumn<QString>("page");
        const QString scoringRule(89, u'-');
        QTest::newRow("Scoring")
            << true
            << u"\nScreening Exam Report Card\n\n               Date    Percent Questions  Number  "
               " Unsure  Scrambled  Allotted  Time Used\nExam Title     Taken   Correct   Asked   "
               "Answered  Answers   Order   Time (min.)  (h:m:s)\n"_s +
                   scoringRule +
                   u"\nExam I        12-20-2026  87.5%      4        4        0      Yes     195   "
                   "1:30:30\nExam II       11-02-2026  50.0%      5        4        2      Yes     "
                   "195   1:30:30\nCustom        01-05-2027   0.0%      2        2        0       "
                   "No           1:30:30\n          Topics Covered:  2, 7\n\n"_s +
                   scoringRule +
                   u"\n             Total:       54.5%     11       10        2              390  "
                   "04:31:30"_s;
        QTest::newRow("QuizSumm")
            << false
            << u"\nReview Test Scoring Report Card\n\n                   Date     Percent  "
               "Questions   Wild   Tries  Scrambled  Time Used\n  Test Type        Taken    "
               "Correct    Asked   Guesses  Ratio    Order    (h:m:s)\n"_s +
                   QString(82, u'-') +
                   u"\n  All Items      11-20-2026   50.0%      2        1      1.25     Yes     "
                   "1:05:30\n  All Items      01-05-2027   25.0%      4        0      1.25     Yes"
                   "     1:05:30\n"_s +
                   QString(17, u' ') + QString(65, u'-') +
                   u"\n                  Total:      33.3%      6        1      1.17"
                   "             2:11:00"_s;
    }
    void printing() {
        QFETCH(bool, scoring);
        QFETCH(QString, page);
        write(MixedRecords());
        f->state.PrintFontName = "Courier New";
        open(scoring);
        click(card->Option1[1]); // the January row, selected, goes last
        f->printer.dialogAnswer.reset();
        card->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(card.get()));
        card->List1->setFocus();
        card->Command1[0]->click(); // as its access key would, the focus where it is
        QVERIFY(f->printer.lines.empty());
        QTRY_COMPARE(QApplication::focusWidget(), card->List1);
        f->printer.dialogAnswer = PrintChoice{};
        click(card->Command1[0]);
        const std::vector<QString> printed = f->printer.pageText(1);
        QCOMPARE(QStringList(printed.begin(), printed.end()).join(u'\n'), page);
        QCOMPARE(f->printer.lines[1].fontName, u"Courier New"_s);
        QCOMPARE(card->List1->currentRow(), card->List1->count() - 1);
        QTRY_COMPARE(QApplication::focusWidget(), card->Command1[2]);
        f->state.PrinterProblem = true;
        open(scoring);
        QVERIFY(!card->Command1[0]->isEnabled());
    }

    // The page shows the grid's cells where they stand: a cell out of place shows here.
    void navigatorPrintChartHelpAndDone() {
        f->state.UserName = "Pat Doe";
        ProgressHeader header; // topic 3 twice, exam II once, on dates in slot order
        header.LogDates = {"", "09-01-2026", "09-08-2026", "10-02-2026"};
        header.LogCodes = {0, 3, 11, 3};
        header.LogScores = {0, 0.65F, 0.72F, 0.9F};
        WriteProgressHeader(header);
        navigator = std::make_unique<Navigator>(f->context);
        navigator->show();
        navigator->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(navigator.get()));
        navigator->Command1_Click(0);
        const std::vector<QString> page = f->printer.pageText(1);
        QCOMPARE(page.size(), std::size_t(4 + 3 + 12 + 11 + 1));
        QStringList picked;
        for (size_t i : {1, 2, 3, 4, 5, 6, 8, 11, 23, 27, 30})
            picked << page[i];
        const QString rule = QString(5, u' ') + QString(48, QChar(0x2014));
        QCOMPARE(
            picked,
            (QStringList{
                Line(u"6:Pat Doe"_s), Line(u"6:Thursday, November 19, 2026"_s), rule,
                Line(u"45:Initial Date|58:First Drill|71:Full|80:Highest|94:Date of"_s),
                Line(u"6: Topic Title|42: of Topic Test|61:Score|70:Takes|81:Score|"
                     "91:Highest Score"_s),
                rule, QString(10, u' ') + QString(88, QChar(0x2014)),
                Line(u"6:Real Property and Laws Relating to Ownership|45:09-01-2026|61:65.0%|72: 2|"
                     "81:90.0%|93:10-02-2026"_s),
                Line(u"6:Brokerage: Responsibilities and Functions of S...|72: 0"_s),
                Line(u"6:Screening Exam II|45:09-08-2026|61:72.0%|72: 1|81:72.0%|93:09-08-2026"_s),
                rule}));
        QCOMPARE(QApplication::focusWidget(), navigator->Command1[2]);
        // The chart follows the current cell, which starts on row 1, column 1; the head column
        // holds no current cell.
        QTableWidget* grid = navigator->Grid1;
        QCOMPARE(navigator->Chart1->accessibleDescription(), u"Definitions: no full takes yet."_s);
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Left);
        QCOMPARE(std::pair(grid->currentRow(), grid->currentColumn()), std::pair(3, 1));
        QCOMPARE(navigator->Chart1->accessibleDescription(),
                 u"Real Property and Laws Relating to Ownership: 2 full takes, 65.0% on "
                 "09-01-2026, 90.0% on 10-02-2026, passing grade 70%."_s);

        f->state.HelpTopic = 3;
        QTest::keyClick(navigator.get(), Qt::Key_H, Qt::AltModifier);
        QTRY_COMPARE(f->state.HelpTopic, 14); // a mnemonic clicks late
        QCOMPARE(f->screens.callsText(), "unload Help, modal Help");
        QTest::keyClick(navigator.get(), Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(!navigator->isVisible());
    }
};

} // namespace tessera

QTEST_MAIN(tessera::ReportsScreensTest)
#include "reports_screens_test.moc"
