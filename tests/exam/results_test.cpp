// Results: the figures (labels, rows, the sort into running order, the note of "&Done"), and
// the printed exam (which items stand on which page and column, the heading of each page, the
// note, the summary, and a copy after another in one job).

#include "exam/exam_format.h"
#include "exam/results_print.h"
#include "exam/results_summary.h"
#include "tests/support/recording_printer.h"
#include "tests/support/small_course.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace tessera {
namespace {

TEST(ResultsSummary, CountsLabelsAndRowsOfAFourItemExam) {
    SessionState state;
    FillSmallCourse(state);
    state.ExamKind = 3;
    state.ExamItemCount = 4;
    state.ExamItems = {0, 8, 2, 4, 6}; // keys A B D B
    state.ExamAnswers = {0, 1, 2, 0, 2};
    state.ExamUnsure = {0, 0, 63, 63, 0}; // a mark without an answer does not count
    state.ExamElapsed = (3600 + 5 * 60 + 9) / 86400.0;
    const ResultsTally tally = CountResults(state);
    EXPECT_EQ(state.ExamKey[3], 4);
    EXPECT_EQ(tally.answered, 3);
    EXPECT_EQ(tally.unsure, 1);
    EXPECT_EQ(tally.missed, 1);
    const auto lines = SummaryLines(tally, 4, state.ExamElapsed);
    EXPECT_EQ(lines[0], "Answered         3");
    EXPECT_EQ(lines[1], "Not Answered     1");
    EXPECT_EQ(lines[2], "   Total         4");
    EXPECT_EQ(lines[3], "Correct          3   75.0%");
    EXPECT_EQ(lines[4], "Unsure           1   25.0%");
    EXPECT_EQ(lines[5], "Time Used     1:05:09");
    EXPECT_EQ(ResultRowText(3, 4, 0, false), "  3   D    ");
    EXPECT_EQ(ResultRowText(12, 2, 1, true), " 12   B    A?");

    SortResults(state);
    EXPECT_EQ((std::vector<int>{state.ExamItems[1], state.ExamItems[2], state.ExamItems[3],
                                state.ExamItems[4]}),
              (std::vector<int>{2, 4, 6, 8}));
    EXPECT_EQ(state.ExamAnswers[4], 1); // item 8 keeps its answer, key and mark
    EXPECT_EQ(state.ExamKey[2], 4);
    EXPECT_EQ(state.ExamUnsure[1], 63);
    EXPECT_EQ(state.ExamUnsure[2], 63);
}

TEST(ResultsSummary, DoneNoteFollowsTheRuleOfThirty) {
    const std::string kept = DoneQuestion(3.0f / 10.0f, "\r\n");
    EXPECT_EQ(kept, "Note: You can review the results of this test later using the report card."
                    "\r\nPress O.K. to stop viewing scoring results or Cancel to keep working.");
    EXPECT_TRUE(DoneQuestion(20.0f / 67.0f, "\r\n")
                    .starts_with("Note: You scored less than 30% correct. Therefore, the "
                                 "results of this test have not been added to your report "
                                 "card.\r\n"));
    EXPECT_EQ(ShortShareText(0.0), ".0%");
    EXPECT_EQ(ShortShareText(0.05), "5.0%");
    EXPECT_EQ(ShareText(0.0), "0.0%");
}

// count items; every item answered unless a multiple of skipEvery; every fifth unsure.
ResultsPrint Exam(int count, int skipEvery = 0) {
    ResultsPrint exam;
    exam.title = "Screening Exam II";
    exam.examName = "Screening Exam II";
    exam.userName = "Pat Doe";
    exam.crLf = "\r\n";
    exam.now = 46345 + 13.5 / 24; // Thursday, November 19, 2026 at 1:30 PM
    exam.summary = {"Answered", "Not Answered", "   Total", "Correct", "Unsure", "Time Used"};
    for (int k = 1; k <= count; ++k) {
        const bool skipped = skipEvery != 0 && k % skipEvery == 0;
        exam.items.push_back({k % 4 + 1, skipped ? 0 : (k * 3) % 4 + 1, k % 5 == 0});
    }
    return exam;
}

// The table rows of a page as their item numbers, left and right (0 for none).
struct Page {
    std::vector<std::pair<int, int>> rows;
    bool continued = false; // the heading of a later page
    bool summary = false;
    bool note = false;
};

std::vector<Page> Pages(const RecordingPrinter& printer, int job = 1) {
    static const QRegularExpression row(QStringLiteral("^  ( {0,3}\\d+) {7}.{11}.. {7}( *\\d+)?"));
    std::vector<Page> pages;
    for (int p = 1; !printer.pageText(p, job).empty(); ++p) {
        Page page;
        for (const QString& line : printer.pageText(p, job)) {
            const auto match = row.match(line);
            if (match.hasMatch())
                page.rows.emplace_back(match.captured(1).toInt(), match.captured(2).toInt());
            page.continued =
                page.continued || line == QStringLiteral("     Screening Exam II  (cont.)");
            page.summary = page.summary || line == QStringLiteral("     Scoring Summary");
            page.note = page.note || line.startsWith(QStringLiteral("Note: "));
        }
        pages.push_back(page);
    }
    return pages;
}

struct PageCase {
    int rows;
    std::pair<int, int> first;
    std::pair<int, int> last;
    bool continued;
    bool note;
    bool summary;
};

struct LayoutCase {
    const char* name;
    int count;
    int skipEvery;
    std::vector<PageCase> pages;
};

class Layout : public ::testing::TestWithParam<LayoutCase> {};

TEST_P(Layout, PutsEachItemOnItsPageAndColumn) {
    const LayoutCase& c = GetParam();
    RecordingPrinter printer;
    ASSERT_TRUE(PrintResults(printer, Exam(c.count, c.skipEvery)));
    const std::vector<Page> pages = Pages(printer);
    ASSERT_EQ(pages.size(), c.pages.size());
    int printed = 0;
    for (std::size_t p = 0; p < pages.size(); ++p) {
        const Page& page = pages[p];
        const PageCase& expected = c.pages[p];
        SCOPED_TRACE("page " + std::to_string(p + 1));
        ASSERT_EQ(static_cast<int>(page.rows.size()), expected.rows);
        if (expected.rows > 0) {
            EXPECT_EQ(page.rows.front(), expected.first);
            EXPECT_EQ(page.rows.back(), expected.last);
        }
        EXPECT_EQ(page.continued, expected.continued);
        EXPECT_EQ(page.note, expected.note);
        EXPECT_EQ(page.summary, expected.summary);
        for (const auto& [left, right] : page.rows)
            printed += 1 + (right != 0 ? 1 : 0);
    }
    EXPECT_EQ(printed, c.count);
    EXPECT_EQ(printer.jobsEnded, 1);
}

INSTANTIATE_TEST_SUITE_P(
    ItemCounts, Layout,
    ::testing::Values(
        // rows, first row, last row, "(cont.)" heading, note, summary
        LayoutCase{"OneItem", 1, 0, {{1, {1, 0}, {1, 0}, false, false, true}}},
        LayoutCase{"OddCountLeavesTheLastRightColumnEmpty",
                   7,
                   3,
                   {{4, {1, 5}, {4, 0}, false, true, true}}},
        LayoutCase{"FullFirstPageLeavesHeadingAndSummary",
                   110,
                   0,
                   {{55, {1, 56}, {55, 110}, false, false, false}, {0, {}, {}, true, false, true}}},
        LayoutCase{"ItemOneHundredElevenAlone",
                   111,
                   0,
                   {{55, {1, 56}, {55, 110}, false, false, false},
                    {1, {111, 0}, {111, 0}, true, false, true}}},
        LayoutCase{"SecondPageBalancesWhatIsLeft",
                   150,
                   0,
                   {{55, {1, 56}, {55, 110}, false, false, false},
                    {20, {111, 131}, {130, 150}, true, false, true}}},
        LayoutCase{"ThreePages",
                   300,
                   7,
                   {{55, {1, 56}, {55, 110}, false, false, false},
                    {55, {111, 166}, {165, 220}, true, false, false},
                    {40, {221, 261}, {260, 300}, true, true, true}}},
        LayoutCase{"SummaryWithoutRoomGoesOver",
                   105,
                   0,
                   {{53, {1, 54}, {53, 0}, false, false, false}, {0, {}, {}, false, false, true}}},
        LayoutCase{"NoteTakesTheLastRoom",
                   104,
                   13,
                   {{52, {1, 53}, {52, 104}, false, true, false}, {0, {}, {}, false, false, true}}},
        LayoutCase{"EverythingAnsweredFitsBeside",
                   104,
                   0,
                   {{52, {1, 53}, {52, 104}, false, false, true}}}),
    [](const ::testing::TestParamInfo<LayoutCase>& info) { return std::string(info.param.name); });

TEST(ResultsPrint, HeadingRowsNoteAndSummaryWordForWord) {
    RecordingPrinter printer;
    printer.dialogAnswer = PrintChoice{2, false};
    ResultsPrint exam = Exam(3, 2);
    exam.fontName = "Courier New";
    ASSERT_TRUE(PrintResults(printer, exam));
    const std::vector<QString> expected = {
        QStringLiteral("     Screening Exam II Results"),
        QStringLiteral("     Pat Doe"),
        QStringLiteral("     Thursday, November 19, 20261:30:00 PM"),
        QString(),
        QStringLiteral("          Correct     Your               Correct     Your     "),
        QStringLiteral("  Item    Answer      Answer     Item    Answer      Answer   "),
        QString(),
        // Item 1 keyed B answered D, beside item 3 keyed D answered B.
        QStringLiteral("     1       B          D           3       D          B "),
        // Item 2, not answered, shows neither letter.
        QStringLiteral("     2                           "),
        QString(30, QLatin1Char('-')),
        QStringLiteral("Note: Correct answer supplied only if question answered."),
        QString(),
        QStringLiteral("     Scoring Summary"),
        QStringLiteral("  Answered"),
        QStringLiteral("  Not Answered"),
        QStringLiteral("     Total"),
        QStringLiteral("  Correct"),
        QStringLiteral("  Unsure"),
        QStringLiteral("  Time Used"),
    };
    EXPECT_EQ(printer.pageText(1), expected);
    // The second copy, in the same job, starts on a page of its own with the full heading.
    EXPECT_EQ(printer.pageText(2), expected);
    EXPECT_TRUE(printer.pageText(3).empty());
    EXPECT_EQ(printer.jobsEnded, 1);
    std::vector<bool> bold;
    for (const PrintedLine& line : printer.lines) {
        EXPECT_EQ(line.fontName, QStringLiteral("Courier New"));
        EXPECT_EQ(line.fontSize, 10);
        if (line.page == 1)
            bold.push_back(line.bold);
    }
    // The heading down to the column heads, and the summary's caption.
    EXPECT_EQ(bold,
              (std::vector<bool>{true, true, true, true, true, true, false, false, false, false,
                                 false, false, true, false, false, false, false, false, false}));
}

TEST(ResultsPrint, CancelPrintsNothingAndAFailingPrinterStopsTheCopies) {
    RecordingPrinter printer;
    printer.dialogAnswer.reset();
    EXPECT_FALSE(PrintResults(printer, Exam(10)));
    EXPECT_TRUE(printer.lines.empty());

    printer.dialogAnswer = PrintChoice{3, false};
    printer.failAfterLines = 20;
    EXPECT_TRUE(PrintResults(printer, Exam(10)));
    EXPECT_EQ(printer.lines.size(), 20U);
    EXPECT_EQ(printer.jobsEnded, 0);
}

} // namespace
} // namespace tessera
