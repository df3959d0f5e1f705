// The rules of a review test as a whole: building, wishes, passing, counting, closing.

#include "review/review_test.h"
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

TEST(BuildAllItemsTest, TakesTheTopicsItemsInRunningOrder) {
    SessionState state = StateWithTopics({100, 39, 40});
    state.CurrentTopic = 3;
    state.TestMisses[7] = 2;
    state.SuspendedTestRecord = 5;
    FakeRandom random;
    BuildAllItemsTest(state, random, 3600.5);

    EXPECT_EQ(state.TestPosition, 1);
    EXPECT_EQ(state.TestFurthest, 0);
    EXPECT_EQ(state.SuspendedTestRecord, 0);
    EXPECT_EQ(state.TestType, AllItemsTest);
    EXPECT_EQ(state.TestItemCount, 40);
    EXPECT_EQ(state.TestItems[1], 140);
    EXPECT_EQ(state.TestItems[40], 179);
    EXPECT_EQ(state.TestMisses[7], 0);
    EXPECT_EQ(state.WishesLeft[1], 2);
    EXPECT_EQ(state.WishesLeft[3], 2);
    EXPECT_EQ(random.calls(), 0) << "an unscrambled test leaves the source alone";

    state.CurrentTopic = 1;
    BuildAllItemsTest(state, random, 0);
    EXPECT_EQ(state.TestItems[1], 1);
    EXPECT_EQ(state.WishesLeft[2], 3);
    state.CurrentTopic = 2;
    BuildAllItemsTest(state, random, 0);
    EXPECT_EQ(state.WishesLeft[1], 1);
}

TEST(BuildAllItemsTest, ScramblesByOnePassOfExchangesSeededFromTheTimeOfDay) {
    SessionState state = StateWithTopics({4});
    state.ScrambleQuestions = true;
    // r = whole part of draw * 4, plus 1: 3, 3, 1, 4.
    FakeRandom random;
    random.script({0.5, 0.6, 0.1, 0.99});
    BuildAllItemsTest(state, random, 45296.75);

    ASSERT_EQ(random.seeds(), std::vector<uint32_t>{45296});
    EXPECT_EQ(random.calls(), 4);
    // i=1,r=3: 3 2 1 4; i=2,r=3: 3 1 2 4; i=3,r=1: 2 1 3 4; i=4,r=4: unchanged.
    EXPECT_EQ(std::vector<int16_t>(state.TestItems.begin() + 1, state.TestItems.begin() + 5),
              (std::vector<int16_t>{2, 1, 3, 4}));
}

TEST(BuildRetake, PicksPositionsByWrongTriesAndKeepsTheirOrder) {
    SessionState state = StateWithTopics({100});
    const std::vector<int16_t> items = {9, 4, 7, 1, 3};
    const std::vector<int16_t> misses = {0, 1, 3, 0, 2};

    BuildRetake(state, 6, items, misses, RetakeChoice::MissedQuestions);
    EXPECT_EQ(state.TestType, RetakeMissedTest);
    EXPECT_EQ(state.TestItemCount, 3);
    EXPECT_EQ(std::vector<int16_t>(state.TestItems.begin() + 1, state.TestItems.begin() + 4),
              (std::vector<int16_t>{4, 7, 3}));
    EXPECT_EQ(state.CurrentTopic, 6);
    EXPECT_EQ(state.TestPosition, 1);
    EXPECT_EQ(state.TestFurthest, 0);
    EXPECT_EQ(state.TestTally[3], 0);
    EXPECT_EQ(state.WishesLeft[1], 1);

    BuildRetake(state, 6, items, misses, RetakeChoice::WildGuesses);
    EXPECT_EQ(state.TestType, RetakeWildGuessesTest);
    EXPECT_EQ(state.TestItemCount, 2);
    EXPECT_EQ(state.TestItems[1], 7);

    const std::vector<int16_t> hundred(100, 5);
    BuildRetake(state, 1, hundred, hundred, RetakeChoice::AllQuestions);
    EXPECT_EQ(state.TestType, RetakeAllTest);
    EXPECT_EQ(state.WishesLeft[2], 2) << "a retake of 100 gets one less than a new test";
    EXPECT_EQ(RetakeWishStock(79), 1);
    EXPECT_EQ(RetakeWishStock(80), 2);
}

struct GradeCase {
    float score;
    int grade;
    bool passes;
    bool counts;
};

class GradeRules : public ::testing::TestWithParam<GradeCase> {};

TEST_P(GradeRules, MessageFollowsTheGradeAndTheDrillTheLowerOfSeventyAndGrade) {
    const GradeCase c = GetParam();
    EXPECT_EQ(PassesGrade(c.score, c.grade), c.passes);
    EXPECT_EQ(DrillCounts(c.score, c.grade), c.counts);
}

INSTANTIATE_TEST_SUITE_P(
    Drills, GradeRules,
    // 0.75 at 85 and 0.69 at 70 are driven through the screen in quiz800_session_test.
    ::testing::Values(GradeCase{0.59F, 60, false, false}, GradeCase{0.65F, 60, true, true},
                      GradeCase{7.0F / 10.0F, 70, true, true}, GradeCase{0.0F, 0, true, true},
                      GradeCase{1.0F, 100, true, true}));

TEST(EndOfTest, OnlyAnAllItemsTestBelowThreeDrillsIsLogged) {
    EXPECT_TRUE(LogsDrill(AllItemsTest, 2));
    EXPECT_FALSE(LogsDrill(AllItemsTest, 3));
    EXPECT_FALSE(LogsDrill(RetakeAllTest, 0));
    EXPECT_FALSE(LogsDrill(RetakeWildGuessesTest, 0));
}

TEST(EndOfTest, FinishedBoxNamesTheMissedPositions) {
    SessionState state = StateWithTopics({10});
    state.TestItemCount = 3;
    state.TestMisses[2] = 3;
    state.TestMisses[4] = 1; // beyond the test: not counted
    EXPECT_EQ(MissedPositions(state), 1);
    // The plural texts are checked on the screen; the singular only here.
    EXPECT_EQ(FinishedMessageText(false, 1, "\r\n"),
              "Sorry, you failed this review test.\r\nYou missed 1 question.");
}

} // namespace
} // namespace tessera
