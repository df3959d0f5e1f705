// The reports without their screens: the exam report card's rows, order, "Include" choices and
// retakes; the monitor's log folded into rows and cells, and the chart of a row.

#include "reports/navigator_chart_data.h"
#include "reports/navigator_table.h"
#include "reports/scoring_rows.h"
#include "tests/reports/card_records.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// The rows by the order they were loaded in, a digit each.
std::string Loaded(const std::vector<ScoringRow>& rows) {
    std::string loaded;
    for (const ScoringRow& row : rows)
        loaded += std::to_string(row.loaded);
    return loaded;
}

// An exam of `asked` items, all answered, `unsure` of them marked unsure.
ExamRecord Sized(const char* date, float score, int asked, int unsure) {
    ExamRecord r = CardExam(10, 1, date, score, {});
    r.ItemCount = r.AnsweredCount = static_cast<int16_t>(asked);
    r.UnsureCount = static_cast<int16_t>(unsure);
    return r;
}

TEST(ScoringRows, LoadingKeepsExamsOnlyWithinThe300Positions) {
    ExamRecord big = CardExam(11, 2, "03-03-2027", 0.5F, {1, 1, 1});
    big.ItemCount = 400;
    ExamRecord partial = CardExam(10, 1, "03-04-2027", 0.5F, {1, 1, 1});
    partial.ItemCount = 2; // position 3 stands past the exam's end and is not loaded
    const auto rows = LoadScoringRows({big, CardExam(13, 1, "03-05-2027", 0.5F, {1}), partial});
    ASSERT_EQ(Loaded(rows), "12");
    EXPECT_NE(ScoringRowText(rows[0]).find("    300 "), std::string::npos);
    EXPECT_EQ(rows[1].record.Items[3] + rows[1].record.AnswerCodes[3], 0);
}

TEST(ScoringRows, SortsOrderByTheirKeyAndLeaveTiesWhereTheGapsPutThem) {
    // Dates compare as month-day-year text: the January exam sorts before the Decembers.
    const auto loaded =
        LoadScoringRows({Sized("12-20-2026", 0.50F, 40, 4), Sized("01-05-2027", 0.90F, 20, 4),
                         Sized("11-02-2026", 0.50F, 150, 15), Sized("03-15-2026", 0.30F, 40, 0),
                         Sized("12-01-2026", 1.00F, 12, 6)});
    EXPECT_EQ(
        SortedKeys(loaded,
                   {ScoringSort::EarliestDate, ScoringSort::LatestDate, ScoringSort::PercentCorrect,
                    ScoringSort::QuestionsAsked, ScoringSort::PercentUnsure},
                   SortScoringRows, &ScoringRow::loaded),
        "24351 15342 52134 34125 52134");
}

TEST(ScoringRows, ErasingSelectsTheRowAboveOrTheNewFirst) {
    const auto three =
        LoadScoringRows({Sized("01-01-2027", 0.5F, 4, 0), Sized("01-02-2027", 0.5F, 4, 0),
                         Sized("01-03-2027", 0.5F, 4, 0)});
    // Each row of three erased in turn, then the only row: the row selected after, the rows left.
    std::string shown;
    for (const auto& [size, erased] :
         {std::pair{3, 1}, std::pair{3, 2}, std::pair{3, 3}, std::pair{1, 1}}) {
        std::vector<ScoringRow> rows(three.begin(), three.begin() + size);
        const int selected = EraseScoringRow(rows, erased);
        shown += std::to_string(selected) + ":" + Loaded(rows) + " ";
    }
    EXPECT_EQ(shown, "1:23 1:13 2:12 0: ");
    // The rows kept are written back with each topic flag exactly one, and none for topic 0.
    std::vector<ScoringRow> kept = three;
    kept[0].record.Topics = {3, 1, 0, 0, 0, 0, 0, 2, 0, 0};
    EXPECT_EQ(KeptExamRecords(kept)[0].Topics,
              (std::array<uint8_t, TopicCount + 1>{0, 1, 0, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(ScoringRows, IncludeChoicesFollowTheRuleOfThreeCompleteDrills) {
    const struct {
        float score;
        int asked;
        int unsure;
        int takeCount;
        int fullLength;
        std::array<bool, 3> offered;
    } cases[] = {
        {1.0F, 20, 0, 0, 150, {true, false, false}},  // nothing missed, nothing unsure
        {0.8F, 20, 3, 2, 150, {true, true, true}},    // under three takes anything goes
        {0.8F, 150, 20, 3, 150, {false, true, true}}, // all of a full exam again: no
        {0.8F, 12, 12, 3, 150, {true, true, false}},  // every item unsure
        {0.8F, 120, 100, 3, 100, {false, true, false}},
        {0.8F, 150, 5, 3, 0, {true, true, true}}, // a custom exam has no full length
    };
    for (const auto& c : cases) {
        const ScoringRow row{Sized("01-01-2027", c.score, c.asked, c.unsure), 1};
        EXPECT_EQ(OfferedExamRetakes(row, c.takeCount, c.fullLength), c.offered)
            << c.asked << " asked, " << c.unsure << " unsure";
    }
}

TEST(ScoringRows, ARetakeAsksTheChosenPositionsInTheirOrderAsANewExam) {
    // Codes: right, wrong, no answer, right and unsure, wrong and unsure, outside the table.
    ExamRecord r = CardExam(11, 2, "04-01-2027", 0.4F, {1, 7, 0, 64, 70, 200}, 101);
    r.TimeLimit = 90;
    r.Structured = 1;
    r.Topics[2] = r.Topics[7] = 1;
    const ScoringRow row = LoadScoringRows({r})[0];
    // The items chosen, then the rest of the table cleared.
    const std::tuple<ExamRetake, int, std::vector<int16_t>> cases[] = {
        {ExamRetake::AllQuestions, 4, {101, 102, 103, 104, 105, 106, 0}},
        {ExamRetake::MissedQuestions, 5, {102, 103, 105, 106, 0}},
        {ExamRetake::UnsureQuestions, 6, {104, 105, 0}},
    };
    std::array<bool, TopicCount + 1> topics{};
    topics[2] = topics[7] = true;
    for (const auto& [choice, type, items] : cases) {
        SessionState state;
        state.SuspendedExamRecord = 7;
        state.ExamPosition = 3;
        state.ExamItems.fill(555);
        state.ExamTopics.fill(true);
        BuildExamRetake(state, row, choice);
        EXPECT_EQ(state.ExamType, type);
        EXPECT_EQ(state.ExamItemCount + 1, static_cast<int>(items.size()));
        EXPECT_TRUE(std::equal(items.begin(), items.end(), state.ExamItems.begin() + 1));
        const std::array<int, 6> kept = {
            state.ExamKind,       state.ExamMinutes,         state.ExamScrambled,
            state.ExamStructured, state.SuspendedExamRecord, state.ExamPosition};
        EXPECT_EQ(kept, (std::array<int, 6>{2, 90, 1, 1, 0, 0}));
        EXPECT_EQ(state.ExamTopics, topics);
    }
}

// One log over the edges: row 3 falls back after two equal bests, row 12 starts at zero, codes
// 13 and 0 are passed over, and a free slot ends the log before row 4's take.
TEST(MonitorTable, TheLogFoldsIntoTheRowsCellsAndTheChart) {
    ProgressHeader log;
    log.LogDates = {"",           "09-01-2026", "09-08-2026", "09-15-2026",       "09-20-2026",
                    "09-21-2026", "09-22-2026", "09-23-2026", std::string(10, 0), "09-25-2026"};
    log.LogCodes = {0, 3, 3, 3, 3, 13, 0, 12, 0, 4};
    log.LogScores = {0, 0.7F, 0.85F, 0.85F, 0.6F, 0.5F, 0.5F, 0, 0.9F, 0.9F};
    const MonitorRows rows = FoldProgressLog(log);
    std::string cells; // rows 3, 12 and 4
    for (int row : {3, 12, 4})
        for (const std::string& cell : MonitorCells(rows[row], "T"))
            cells += cell + "|";
    EXPECT_EQ(
        cells,
        "T|09-01-2026|70.0%| 4|85.0%|09-15-2026|T|09-23-2026|0.0%| 1|0.0%|09-23-2026|T||| 0|||");
    // The grade itself passes; a single take stands in the middle.
    std::string points;
    for (int row : {3, 12})
        for (const ChartPoint& point : ChartOfRow(rows[row], "T", 70).points)
            points += std::to_string(point.x).substr(0, 4) + (point.passing ? "+ " : "- ");
    EXPECT_EQ(points, "0.00+ 0.33+ 0.66+ 1.00- 0.50- ");
}

} // namespace
} // namespace tessera
