#include "reports/scoring_rows.h"

#include "scoring_exam.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

std::string Blanks(size_t n) {
    return std::string(n, ' ');
}

std::vector<int> Loaded(const std::vector<ScoringRow>& rows) {
    std::vector<int> loaded;
    for (const ScoringRow& row : rows)
        loaded.push_back(row.loaded);
    return loaded;
}

// An exam of `asked` items, `unsure` of them marked unsure.
ExamRecord Sized(const char* date, float score, int asked, int unsure) {
    ExamRecord r = CardExam(10, 1, date, score, {});
    r.ItemCount = static_cast<int16_t>(asked);
    r.AnsweredCount = r.ItemCount;
    r.UnsureCount = static_cast<int16_t>(unsure);
    return r;
}

TEST(ScoringRows, RowTextFillsEachColumnToItsWidth) {
    ExamRecord custom = CardExam(12, 3, "01-05-2027", 0.5F, {1, 6});
    custom.TimeLimit = 0; // no allotted time: an empty field
    custom.Scrambled = 0;
    custom.MinutesUsed = 1.5F;
    const struct {
        ExamRecord record;
        std::string text;
    } cases[] = {
        {CardExam(10, 1, "12-20-2026", 0.875F, {1, 2, 3, 4, 1, 2, 3, 9}),
         "Exam I        12-20-2026  87.5%      8        8        0      Yes     195   1:30:30"},
        {custom, "Custom        01-05-2027  50.0%      2        2        0       No" + Blanks(8) +
                     "   0:01:30"},
        {CardExam(11, 5, "02-01-2027", 1.0F, {64}),
         "Retake Missed 02-01-2027 100.0%      1        1        1      Yes     195   1:30:30"},
        {CardExam(11, 6, "02-02-2027", 0.0F, {}),
         "Retake Unsure 02-02-2027   0.0%      0        0        0      Yes     195   1:30:30"},
        {CardExam(10, 4, "02-03-2027", 0.25F, {0}),
         "Retake All    02-03-2027  25.0%      1        0        0      Yes     195   1:30:30"},
        {CardExam(11, 2, "02-04-2027", 0.25F, {0}),
         "Exam II       02-04-2027  25.0%      1        0        0      Yes     195   1:30:30"},
    };
    for (const auto& c : cases) {
        const auto rows = LoadScoringRows({c.record});
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_EQ(ScoringRowText(rows[0]), c.text);
        EXPECT_EQ(c.text.size(), 83U);
    }
}

TEST(ScoringRows, TotalsStandUnderTheColumnsAndRoundTheCorrectCountRowByRow) {
    EXPECT_EQ(ScoringTotalsText({}), "Total:");
    // Each row's 2.5 right answers round to the even neighbour as they are added: 2, then 4.
    // Two times 12.5 hours used read as a time of day: 01:00:00.
    ExamRecord a = Sized("01-01-2027", 0.5F, 5, 0);
    ExamRecord b = Sized("01-02-2027", 0.5F, 5, 0);
    a.TimeLimit = b.TimeLimit = 0;
    a.MinutesUsed = b.MinutesUsed = 750;
    b.AnsweredCount = 4;
    EXPECT_EQ(ScoringTotalsText(LoadScoringRows({a, b})),
              "Total:" + Blanks(7) + "40.0%" + Blanks(5) + "10" + Blanks(8) + "9" + Blanks(8) +
                  "0" + Blanks(8) + Blanks(8) + "0" + "  01:00:00");
    EXPECT_EQ(ScoringTotalsText(LoadScoringRows({Sized("01-01-2027", 0.004F, 300, 3)})),
              "Total:" + Blanks(9) + ".3%" + "    300      300        3" + Blanks(8) + "      195" +
                  "  01:30:30");
}

TEST(ScoringRows, LoadingKeepsExamsOnlyWithinThe300Positions) {
    ExamRecord big = CardExam(11, 2, "03-03-2027", 0.5F, {1, 1, 1});
    big.ItemCount = 400;
    ExamRecord partial = CardExam(10, 1, "03-04-2027", 0.5F, {1, 1, 1});
    partial.ItemCount = 2; // position 3 stands past the exam's end and is not loaded
    const auto rows = LoadScoringRows({big, CardExam(13, 1, "03-05-2027", 0.5F, {1}), partial});
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(Loaded(rows), (std::vector<int>{1, 2}));
    EXPECT_NE(ScoringRowText(rows[0]).find("    300 "), std::string::npos);
    EXPECT_EQ(rows[1].record.Items[3], 0);
    EXPECT_EQ(rows[1].record.AnswerCodes[3], 0);
}

struct SortCase {
    ScoringSort sort;
    std::vector<int> loaded;
};

class ScoringSorts : public testing::TestWithParam<SortCase> {};

TEST_P(ScoringSorts, OrderByTheirKeyAndLeaveTiesWhereTheGapsPutThem) {
    // Dates compare as month-day-year text: the January exam sorts before the Decembers.
    std::vector<ScoringRow> rows =
        LoadScoringRows({Sized("12-20-2026", 0.50F, 40, 4), Sized("01-05-2027", 0.90F, 20, 4),
                         Sized("11-02-2026", 0.50F, 150, 15), Sized("03-15-2026", 0.30F, 40, 0),
                         Sized("12-01-2026", 1.00F, 12, 6)});
    SortScoringRows(rows, GetParam().sort);
    EXPECT_EQ(Loaded(rows), GetParam().loaded);
    SortScoringRows(rows, GetParam().sort);
    EXPECT_EQ(Loaded(rows), GetParam().loaded);
}

INSTANTIATE_TEST_SUITE_P(FiveWays, ScoringSorts,
                         testing::Values(SortCase{ScoringSort::EarliestDate, {2, 4, 3, 5, 1}},
                                         SortCase{ScoringSort::LatestDate, {1, 5, 3, 4, 2}},
                                         SortCase{ScoringSort::PercentCorrect, {5, 2, 1, 3, 4}},
                                         SortCase{ScoringSort::QuestionsAsked, {3, 4, 1, 2, 5}},
                                         SortCase{ScoringSort::PercentUnsure, {5, 2, 1, 3, 4}}));

TEST(ScoringRows, ErasingSelectsTheRowAboveOrTheNewFirst) {
    const auto three =
        LoadScoringRows({Sized("01-01-2027", 0.5F, 4, 0), Sized("01-02-2027", 0.5F, 4, 0),
                         Sized("01-03-2027", 0.5F, 4, 0)});
    const struct {
        int erased;
        int selected;
        std::vector<int> left;
    } cases[] = {{1, 1, {2, 3}}, {2, 1, {1, 3}}, {3, 2, {1, 2}}};
    for (const auto& c : cases) {
        auto rows = three;
        EXPECT_EQ(EraseScoringRow(rows, c.erased), c.selected);
        EXPECT_EQ(Loaded(rows), c.left);
    }
    auto one = LoadScoringRows({Sized("01-01-2027", 0.5F, 4, 0)});
    EXPECT_EQ(EraseScoringRow(one, 1), 0);
    EXPECT_TRUE(one.empty());
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

// Codes: right, wrong, no answer, right and unsure, wrong and unsure, outside the table.
ScoringRow MixedRow() {
    ExamRecord r = CardExam(11, 2, "04-01-2027", 0.4F, {1, 7, 0, 64, 70, 200}, 101);
    r.TimeLimit = 90;
    r.Structured = 1;
    r.Topics[2] = 1;
    r.Topics[7] = 1;
    return LoadScoringRows({r})[0];
}

TEST(ScoringRows, ARetakeAsksTheChosenPositionsInTheirOrderAsANewExam) {
    const struct {
        ExamRetake choice;
        int type;
        std::vector<int16_t> items;
    } cases[] = {
        {ExamRetake::AllQuestions, 4, {101, 102, 103, 104, 105, 106}},
        {ExamRetake::MissedQuestions, 5, {102, 103, 105, 106}},
        {ExamRetake::UnsureQuestions, 6, {104, 105}},
    };
    for (const auto& c : cases) {
        SessionState state;
        state.SuspendedExamRecord = 7;
        state.ExamPosition = 3;
        state.ExamItems.fill(555);
        state.ExamTopics.fill(true);
        BuildExamRetake(state, MixedRow(), c.choice);
        EXPECT_EQ(state.ExamType, c.type);
        ASSERT_EQ(state.ExamItemCount, static_cast<int16_t>(c.items.size()));
        EXPECT_EQ(std::vector<int16_t>(state.ExamItems.begin() + 1,
                                       state.ExamItems.begin() + 1 + state.ExamItemCount),
                  c.items);
        EXPECT_EQ(state.ExamItems[c.items.size() + 1], 0);
        EXPECT_EQ(state.ExamKind, 2);
        EXPECT_EQ(state.ExamMinutes, 90);
        EXPECT_TRUE(state.ExamScrambled);
        EXPECT_EQ(state.ExamStructured, 1);
        EXPECT_EQ(state.SuspendedExamRecord, 0);
        EXPECT_EQ(state.ExamPosition, 0);
        for (int t = 0; t <= TopicCount; ++t)
            EXPECT_EQ(state.ExamTopics[static_cast<size_t>(t)], t == 2 || t == 7) << t;
    }
}

TEST(ScoringRows, AStoredExamComesBackForResultsWithItsAnswersAndMarks) {
    SessionState state;
    state.ExamScrambled = true;
    state.ExamAnswers.fill(4);
    state.ExamUnsure.fill(63);
    LoadStoredExam(state, MixedRow());
    EXPECT_EQ(state.ExamItemCount, 6);
    EXPECT_EQ(state.ExamKind, 2);
    EXPECT_DOUBLE_EQ(state.ExamElapsed, 90.5 / 1440.0);
    EXPECT_FLOAT_EQ(state.ExamScore, 0.4F);
    EXPECT_TRUE(state.ExamScrambled); // not stored on the card
    const std::vector<int16_t> answers = {0, 1, 2, 0, 1, 2, 0, 0};
    const std::vector<int16_t> unsure = {0, 0, 0, 0, 63, 63, 0, 0};
    EXPECT_EQ(std::vector<int16_t>(state.ExamAnswers.begin(), state.ExamAnswers.begin() + 8),
              answers);
    EXPECT_EQ(std::vector<int16_t>(state.ExamUnsure.begin(), state.ExamUnsure.begin() + 8), unsure);
    EXPECT_EQ(state.ExamItems[6], 106);
}

} // namespace
} // namespace tessera
