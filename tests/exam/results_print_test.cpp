// The printed exam: which items stand on which page and column, the heading of each page, the
// note, the summary, and a copy after another in one job.

#include "exam/results_print.h"
#include "tests/support/recording_printer.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace tessera {
namespace {

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
    const auto blanks = [](int n) { return QString(n, QLatin1Char(' ')); };
    const QString firstHead =
        blanks(10) + QStringLiteral("Correct") + blanks(5) + QStringLiteral("Your") + blanks(5);
    const QString secondHead = blanks(2) + QStringLiteral("Item") + blanks(4) +
                               QStringLiteral("Answer") + blanks(6) + QStringLiteral("Answer") +
                               blanks(3);
    const std::vector<QString> expected = {
        QStringLiteral("     Screening Exam II Results"),
        QStringLiteral("     Pat Doe"),
        QStringLiteral("     Thursday, November 19, 20261:30:00 PM"),
        QString(),
        firstHead + firstHead,
        secondHead + secondHead,
        QString(),
        // Item 1 keyed B answered D, beside item 3 keyed D answered B.
        blanks(5) + QStringLiteral("1") + blanks(7) + QStringLiteral("B") + blanks(10) +
            QStringLiteral("D ") + blanks(7) + QStringLiteral("   3") + blanks(7) +
            QStringLiteral("D") + blanks(10) + QStringLiteral("B "),
        // Item 2, not answered, shows neither letter.
        blanks(5) + QStringLiteral("2") + blanks(7 + 1 + 10 + 2 + 7),
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
