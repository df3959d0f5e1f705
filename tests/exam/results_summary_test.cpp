// The figures of Results: labels, rows, the sort into running order, the note of "&Done".

#include "exam/exam_format.h"
#include "exam/results_summary.h"
#include "tests/support/small_course.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace tessera
