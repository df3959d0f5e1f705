// The printed screening exam report card: heads, rows, a custom exam's topics, page breaks with
// their continuation title, the totals, copies and fonts, as the printer receives them.

#include "reports/scoring_print.h"

#include "scoring_exam.h"
#include "tests/support/recording_printer.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

const QString Head1 = QStringLiteral("               Date    Percent Questions  Number   Unsure  "
                                     "Scrambled  Allotted  Time Used");
const QString Head2 = QStringLiteral("Exam Title     Taken   Correct   Asked   Answered  Answers   "
                                     "Order   Time (min.)  (h:m:s)");
const QString Rule = QString(89, QLatin1Char('-'));
const QString Plain =
    QStringLiteral("Exam I        12-20-2026  50.0%      2        2        0      "
                   "Yes     195   1:30:30");
const QString Custom =
    QStringLiteral("Custom        01-05-2027  50.0%      2        2        0     "
                   " Yes     195   1:30:30");
const QString Topics = QStringLiteral("          Topics Covered:  2, 7");

ScoringRow PlainRow() {
    return {CardExam(10, 1, "12-20-2026", 0.5F, {1, 6}), 1};
}

ScoringRow CustomRow() {
    ScoringRow row{CardExam(12, 3, "01-05-2027", 0.5F, {1, 6}), 2};
    row.record.Topics[2] = row.record.Topics[7] = 1;
    return row;
}

std::vector<ScoringRow> Rows(int plainBefore, bool custom, int plainAfter) {
    std::vector<ScoringRow> rows(static_cast<size_t>(plainBefore), PlainRow());
    if (custom)
        rows.push_back(CustomRow());
    rows.insert(rows.end(), static_cast<size_t>(plainAfter), PlainRow());
    return rows;
}

std::vector<QString> Repeated(const QString& line, int times) {
    return std::vector<QString>(static_cast<size_t>(times), line);
}

std::vector<QString> Join(std::initializer_list<std::vector<QString>> parts) {
    std::vector<QString> all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

QString Totals(const std::vector<ScoringRow>& rows) {
    return QString(13, QLatin1Char(' ')) + QString::fromStdString(ScoringTotalsText(rows));
}

const std::vector<QString> Opening = {
    QString(), QStringLiteral("Screening Exam Report Card"), QString(), Head1, Head2, Rule};
const std::vector<QString> Continued = {
    QString(), QStringLiteral("Screening Exam Report Card (cont.)"), QString()};

TEST(ScoringPrint, FiftyFourPlainRowsFillThePageAndTheTotalsGoOver) {
    ASSERT_EQ(Head1.size(), 89);
    ASSERT_EQ(Head2.size(), 89);
    RecordingPrinter printer;
    const auto rows = Rows(54, false, 0);
    PrintCard(printer, ScoringPaper(rows, "Courier New"));
    EXPECT_EQ(printer.dialogsShown, std::vector<PrintDialogKind>{PrintDialogKind::Table});
    EXPECT_EQ(printer.pageText(1), Join({Opening, Repeated(Plain, 54)}));
    EXPECT_EQ(printer.pageText(2), Join({Continued, {Rule, Totals(rows)}}));
    EXPECT_TRUE(printer.pageText(3).empty());
    EXPECT_EQ(printer.jobsEnded, 1);
    EXPECT_EQ(printer.lines.front().fontName, QStringLiteral("Courier New"));
    EXPECT_EQ(printer.lines.back().fontSize, 10.0);
    EXPECT_EQ(printer.lines.back().column, 14);
}

TEST(ScoringPrint, ACustomExamKeepsItsTopicsAndBlankLineOnItsPage) {
    // 53 rows bring the page to line 60; the custom exam's three lines then pass line 61.
    RecordingPrinter printer;
    const auto rows = Rows(53, true, 1);
    PrintCard(printer, ScoringPaper(rows, "Courier New"));
    EXPECT_EQ(printer.pageText(1),
              Join({Opening, Repeated(Plain, 53), {Custom, Topics, QString()}}));
    EXPECT_EQ(printer.pageText(2), Join({Continued, {Plain, Rule, Totals(rows)}}));
}

TEST(ScoringPrint, EachCopyHasItsOwnHeadsRowsAndTotalsInOneJob) {
    RecordingPrinter printer;
    printer.dialogAnswer = PrintChoice{2, false};
    const auto rows = Rows(1, true, 1);
    PrintCard(printer, ScoringPaper(rows, "Courier New"));
    const auto copy =
        Join({Opening, {Plain, Custom, Topics, QString(), Plain, Rule, Totals(rows)}});
    EXPECT_EQ(printer.pageText(1), copy);
    EXPECT_EQ(printer.pageText(2), copy);
    EXPECT_EQ(printer.jobsEnded, 1);
}

TEST(ScoringPrint, WithoutAFixedPitchFontTheSystemsOwnPrintsAtSize10) {
    // Whatever font an earlier print left, the card asks for the fixed-pitch fallback.
    RecordingPrinter printer;
    printer.setFontName(QStringLiteral("Arial"));
    printer.setFontSize(11);
    printer.setFontBold(true);
    PrintCard(printer, ScoringPaper(Rows(1, false, 0), ""));
    ASSERT_EQ(printer.lines.size(), 9U);
    for (const PrintedLine& line : printer.lines) {
        EXPECT_EQ(line.fontName, QString());
        EXPECT_EQ(line.fontSize, 10.0);
        EXPECT_FALSE(line.bold);
    }
}

TEST(ScoringPrint, CancelPrintsNothing) {
    RecordingPrinter printer;
    printer.dialogAnswer.reset();
    PrintCard(printer, ScoringPaper(Rows(3, false, 0), "Courier New"));
    EXPECT_TRUE(printer.lines.empty());
    EXPECT_EQ(printer.jobsEnded, 0);
}

} // namespace
} // namespace tessera
