// The rules of a review test without its screen: building, scoring, the gauge, the 50:50 and the
// end; and the rows of its report card, their order and the retakes they offer.

#include "core/screen_colours.h"
#include "review/coin_toss.h"
#include "review/item_scoring.h"
#include "review/quiz_summ_rows.h"
#include "review/review_test.h"
#include "review/review_text.h"
#include "tests/reports/card_records.h"
#include "tests/support/fake_random.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessera {
namespace {

SessionState StateWithTopics(std::vector<int16_t> counts) {
    SessionState state;
    FillCatalogue(state);
    for (size_t t = 0; t < counts.size(); ++t)
        state.content.ItemCounts[t + 1][1] = counts[t];
    state.TestTally = {0, 4, 3, 9, 2};
    return state;
}

std::vector<int16_t> Items(const SessionState& state) {
    return {state.TestItems.begin() + 1, state.TestItems.begin() + 1 + state.TestItemCount};
}

TEST(BuildAllItemsTest, TakesTheTopicsItemsInRunningOrderWithOneWishPer40) {
    SessionState state = StateWithTopics({100, 39, 40});
    state.TestMisses[7] = 2;
    state.SuspendedTestRecord = 5;
    FakeRandom random;
    // Topic, its first and last item, and the stock of each wish.
    for (const std::array<int, 4> expected :
         {std::array{3, 140, 179, 2}, std::array{1, 1, 100, 3}, std::array{2, 101, 139, 1}}) {
        state.CurrentTopic = static_cast<int16_t>(expected[0]);
        BuildAllItemsTest(state, random, 3600.5);
        EXPECT_EQ((std::array<int, 4>{state.CurrentTopic, state.TestItems[1],
                                      state.TestItems[state.TestItemCount], state.WishesLeft[3]}),
                  expected);
        EXPECT_EQ(state.WishesLeft[1], state.WishesLeft[2]);
    }
    EXPECT_EQ(state.TestFurthest + state.SuspendedTestRecord + state.TestMisses[7], 0);

    // Scrambled: one pass of exchanges seeded from the time of day. r = draw * 4, plus 1:
    // 3, 3, 1, 4 turn 1 2 3 4 into 3 2 1 4, 3 1 2 4, 2 1 3 4 and leave it so.
    state = StateWithTopics({4});
    state.ScrambleQuestions = true;
    random.script({0.5, 0.6, 0.1, 0.99});
    BuildAllItemsTest(state, random, 45296.75);
    EXPECT_EQ(random.seeds(), std::vector<uint32_t>{45296});
    EXPECT_EQ(Items(state), (std::vector<int16_t>{2, 1, 3, 4}));
}

TEST(BuildRetake, PicksPositionsByWrongTriesAndKeepsTheirOrder) {
    SessionState state = StateWithTopics({100});
    const std::vector<int16_t> items = {9, 4, 7, 1, 3};
    const std::vector<int16_t> misses = {0, 1, 3, 0, 2};
    BuildRetake(state, 6, items, misses, RetakeChoice::MissedQuestions);
    EXPECT_EQ(Items(state), (std::vector<int16_t>{4, 7, 3}));
    EXPECT_EQ((std::array<int, 3>{state.TestFurthest, state.TestTally[3], state.WishesLeft[1]}),
              (std::array<int, 3>{0, 0, 1}));
    BuildRetake(state, 6, items, misses, RetakeChoice::WildGuesses);
    EXPECT_EQ(Items(state), (std::vector<int16_t>{7, 3}));
    EXPECT_EQ(state.TestType, RetakeWildGuessesTest);

    const std::vector<int16_t> hundred(100, 5);
    BuildRetake(state, 1, hundred, hundred, RetakeChoice::AllQuestions);
    EXPECT_EQ(state.TestType, RetakeAllTest);
    EXPECT_EQ(state.WishesLeft[2], 2) << "a retake of 100 gets one less than a new test";
    EXPECT_EQ(std::pair(RetakeWishStock(79), RetakeWishStock(80)), std::pair(1, 2));
}

TEST(ItemScoring, PanelTextsNumbersGaugeAndTheEnd) {
    SessionState state;
    state.PassingGrade = 70;
    state.TestTally = {0, 7, 3, 10, 0};
    EXPECT_EQ(UpdatePerformance(state).scoreColour, PassingColour) << "0.7 at a grade of 70";
    // A drill counts at the lower of 70 and the grade; only a first three are logged.
    EXPECT_EQ(std::tuple(DrillCounts(0.65F, 60), DrillCounts(0.69F, 70), LogsDrill(AllItemsTest, 2),
                         LogsDrill(AllItemsTest, 3) || LogsDrill(RetakeAllTest, 0)),
              std::tuple(true, false, true, false));
    EXPECT_EQ(FinishedMessageText(true, 2, "/"),
              "Congratulations! You passed this review test./You missed 2 questions.");

    EXPECT_EQ(NumberForm(5) + NumberForm(0) + NumberForm(-3), " 5 0-3");
    // A half rounds up; the date part is not shown; seconds round.
    EXPECT_EQ(PercentText(0.0625F) + WholePercentText(70) + WholePercentText(0), "6.3%70%%");
    EXPECT_EQ(ClockText(46000.5) + " " + ClockText(1.0 + 59.6 / 86400.0), "12:00:00 0:01:00");

    // The bar stands on the bottom line; the arrow points at the grade.
    for (const auto& [score, top, height] :
         {std::tuple{1.0F, 20, 200}, std::tuple{0.0F, 220, 0}, std::tuple{0.75F, 70, 150}}) {
        const GaugeBar bar = GaugeBarGeometry(20, 200, score);
        EXPECT_EQ(std::pair(bar.top, bar.height), std::pair(top, height)) << score;
    }
    EXPECT_EQ(PassMarkTop(20, 200, 70, 30), 70);
}

// The draws that land on a cut or tried answer are in the review screen's test.
TEST(CoinToss, NoSurvivorWithoutAMarkedAnswerAndTheCutLeavesABlankLine) {
    FakeRandom random;
    EXPECT_EQ(DrawCoinTossSurvivor({false, false, false, false}, random), -1);
    EXPECT_EQ(random.calls(), 0);

    std::string question = "Which is real property?\r\n\\par A. A lease\r\n\\par B. Land\r\n"
                           "\\par C. A car\r\n\\par D. Cash\r\n\\par ";
    for (int cut : {0, 2, 0}) // an answer already cut is passed over
        CutAnswerText(question, cut, "\r\n");
    EXPECT_EQ(question, "Which is real property?\r\n\\\r\n\\par B. Land\r\n\\\r\n"
                        "\\par D. Cash\r\n\\par ");
}

// An all items row and the totals stand on the printed card.
TEST(QuizSummRows, RowsAndTotalsFillEachColumnToItsWidth) {
    ReviewTestRecord plain = CardRecord(4, "11-21-2026", 1.0F, 4, {0});
    plain.Scrambled = 0;
    plain.TriesRatio = 0.5F;
    plain.MinutesUsed = 0.25F;
    EXPECT_EQ(CardRowText(LoadCardRows({plain})[0]),
              "Retake Wild    11-21-2026  100.0%      1        0       .50      No     0:00:15");
    // Seconds that round to 60 carry into the minutes.
    EXPECT_EQ(FormatTimeUsed(59.999F) + " " + FormatTimeUsed(600.0F), "1:00:00 10:00:00");
}

TEST(QuizSummRows, SortsOrderByTheirKeyAndLeaveTiesWhereTheGapsPutThem) {
    // The dates compare as month-day-year text, so 01-05-2027 is the earliest.
    const auto loaded = LoadCardRows({CardRecord(5, "12-20-2026", 0.50F, 1, {2, 0}),
                                      CardRecord(2, "01-05-2027", 0.90F, 1, {2, 2}),
                                      CardRecord(9, "11-02-2026", 0.50F, 1, {0, 0, 0, 2}),
                                      CardRecord(2, "03-15-2026", 0.10F, 2, {0, 2, 2, 0}),
                                      CardRecord(7, "12-01-2026", 1.00F, 3, {0})});
    EXPECT_EQ(SortedKeys(loaded,
                         {CardSort::EarliestDate, CardSort::LatestDate, CardSort::PercentCorrect,
                          CardSort::TopicSequence, CardSort::PercentWild},
                         SortCardRows, &CardRow::key),
              "24351 15342 52134 24153 21435");
}

TEST(QuizSummRows, IncludeChoicesFollowTheRowAndTheDrills) {
    const struct {
        float score;
        std::vector<uint8_t> misses;
        int takeCount;
        std::array<bool, 3> offered;
    } cases[] = {
        {1.0F, {0, 0, 0, 0}, 0, {true, false, false}},
        {1.0F, {0, 0, 0, 0}, 3, {false, false, false}},
        {0.75F, {1, 0, 0, 0}, 0, {true, true, false}},
        {0.5F, {2, 1, 0}, 3, {true, true, true}}, // part of the topic
        {0.0F, {2, 2, 2, 2}, 3, {false, false, false}},
        {0.0F, {2, 2, 2, 2}, 2, {true, true, true}},
    };
    for (const auto& c : cases) {
        ReviewTestRecord record = CardRecord(1, "01-01-2026", c.score, 1, {});
        record.ItemCount = static_cast<int16_t>(c.misses.size());
        std::copy(c.misses.begin(), c.misses.end(), record.Misses.begin() + 1);
        // The topic has 4 items.
        EXPECT_EQ(OfferedRetakes(LoadCardRows({record})[0], c.takeCount, 4), c.offered)
            << c.score << " after " << c.takeCount << " takes";
    }
}

} // namespace
} // namespace tessera
