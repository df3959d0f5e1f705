// The printed results: which items stand on which page and column, each page's heading, the
// note, the summary.

#include "exam/results_print.h"
#include "tests/support/recording_printer.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace tessera {
namespace {

// count items on November 19, 2026 at 1:30 PM; every item answered unless a multiple of
// skipEvery; every fifth unsure.
ResultsPrint Exam(int count, int skipEvery = 0) {
    ResultsPrint exam;
    exam.title = exam.examName = "Screening Exam II";
    std::tie(exam.userName, exam.crLf, exam.now) = std::tuple("Pat Doe", "\r\n", 46345 + 13.5 / 24);
    exam.summary = {"Answered", "Not Answered", "   Total", "Correct", "Unsure", "Time Used"};
    for (int k = 1; k <= count; ++k) {
        const bool skipped = skipEvery != 0 && k % skipEvery == 0;
        exam.items.push_back({k % 4 + 1, skipped ? 0 : (k * 3) % 4 + 1, k % 5 == 0});
    }
    return exam;
}

// Each page as its count of table rows, the item numbers of its first and last row (left/right,
// 0 for none), and whether it has the "(cont.)" heading, the note and the summary.
std::string Layout(const RecordingPrinter& printer) {
    static const QRegularExpression row(QStringLiteral("^  ( {0,3}\\d+) {7}.{11}.. {7}( *\\d+)?"));
    std::string pages;
    for (int p = 1; !printer.pageText(p).empty(); ++p) {
        int rows = 0;
        std::string first, last, marks;
        for (const QString& line : printer.pageText(p)) {
            if (const auto match = row.match(line); match.hasMatch()) {
                last = std::to_string(match.captured(1).toInt()) + "/" +
                       std::to_string(match.captured(2).toInt());
                first = rows++ == 0 ? last : first;
            }
            marks += line == QStringLiteral("     Screening Exam II  (cont.)") ? " cont"
                     : line.startsWith(QStringLiteral("Note: "))               ? " note"
                     : line == QStringLiteral("     Scoring Summary")          ? " summary"
                                                                               : "";
        }
        pages += (p > 1 ? " | " : "") + std::to_string(rows) +
                 (rows == 0 ? "" : " " + first + ".." + last) + marks;
    }
    return pages;
}

TEST(ResultsPrint, PutsEachItemOnItsPageAndColumn) {
    // Items, every how many one is skipped, the pages.
    const std::tuple<int, int, std::string> cases[] = {
        {7, 3, "4 1/5..4/0 note summary"}, // an odd count leaves the last right column empty
        {110, 0, "55 1/56..55/110 | 0 cont summary"},
        {111, 0, "55 1/56..55/110 | 1 111/0..111/0 cont summary"},
        {300, 7,
         "55 1/56..55/110 | 55 111/166..165/220 cont | 40 221/261..260/300 cont note "
         "summary"},
        {105, 0, "53 1/54..53/0 | 0 summary"},         // the summary without room goes over
        {104, 13, "52 1/53..52/104 note | 0 summary"}, // the note takes the last room
        {104, 0, "52 1/53..52/104 summary"},
    };
    for (const auto& [count, skipEvery, layout] : cases) {
        RecordingPrinter printer;
        ASSERT_TRUE(PrintResults(printer, Exam(count, skipEvery)));
        EXPECT_EQ(Layout(printer), layout) << count;
        EXPECT_EQ(printer.jobsEnded, 1);
    }
}

TEST(ResultsPrint, HeadingRowsNoteAndSummaryWordForWordOnEachCopy) {
    RecordingPrinter printer;
    printer.dialogAnswer = PrintChoice{2, false};
    ResultsPrint exam = Exam(3, 2);
    exam.fontName = "Courier New";
    exam.userName = "\x8Aimon Doe"; // a Windows-1252 name: S with caron
    ASSERT_TRUE(PrintResults(printer, exam));
    EXPECT_TRUE(std::ranges::all_of(printer.lines, [](const PrintedLine& line) {
        return line.fontName == QStringLiteral("Courier New") && line.fontSize == 10;
    }));
    // A page as its lines at their columns; bold lines marked with '*'.
    const auto page = [&printer](int p) {
        QString text;
        for (const PrintedLine& line : printer.lines) {
            if (line.page == p)
                text +=
                    (line.bold ? u'*' : u' ') + QString(line.column - 1, u' ') + line.text + u'|';
        }
        return text;
    };
    // The heading down to the column heads is bold, and the summary's caption. Item 1 keyed B
    // answered D stands beside item 3 keyed D answered B; item 2, unanswered, shows neither.
    const QString expected = QStringLiteral(
        "*     Screening Exam II Results|*     \u0160imon Doe|"
        "*     Thursday, November 19, 20261:30:00 PM|*|"
        "*          Correct     Your               Correct     Your     |"
        "*  Item    Answer      Answer     Item    Answer      Answer   | |"
        "      1       B          D           3       D          B |"
        "      2                           | ------------------------------|"
        " Note: Correct answer supplied only if question answered.| |*     Scoring Summary|"
        "   Answered|   Not Answered|      Total|   Correct|   Unsure|   Time Used|");
    EXPECT_EQ(page(1), expected);
    EXPECT_EQ(page(2), expected); // the second copy starts on a page of its own
    EXPECT_EQ(page(3), QString());
    EXPECT_EQ(printer.jobsEnded, 1);
}

} // namespace
} // namespace tessera
