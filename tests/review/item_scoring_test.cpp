// Scoring one item: tallies, feedback, the panel's texts, the gauge and the 50:50.

#include "review/coin_toss.h"
#include "review/item_scoring.h"
#include "review/review_text.h"
#include "tests/support/fake_random.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

// Answers by click and key, with their tallies and phrases, are driven through the screen in
// quiz800_items_test; here stand the panel's numbers and the parts without widgets.
class PerformanceTest : public ::testing::Test {
protected:
    void SetUp() override {
        state.TestItemCount = 10;
        state.TestPosition = 4;
        state.PassingGrade = 70;
    }
    SessionState state;
};

TEST_F(PerformanceTest, PerformancePanelFollowsTheScoredItems) {
    // A blank panel before any try and 0.0% in red after a first miss are seen on the screen.
    state.TestTally = {0, 3, 1, 7, 1};
    const PerformanceLabels labels = UpdatePerformance(state);
    EXPECT_EQ(labels.wrong, "Wrong: 1");
    EXPECT_EQ(labels.tries, "Tries: 7");
    EXPECT_EQ(labels.score, "75.0%");
    EXPECT_EQ(labels.scoreColour, PassingColour);
    EXPECT_EQ(labels.wildGuesses, "Wild Guesses: 1");

    state.TestTally = {0, 7, 3, 10, 0};
    UpdatePerformance(state);
    EXPECT_EQ(PercentText(state.TestScore), "70.0%");
    EXPECT_EQ(UpdatePerformance(state).scoreColour, PassingColour) << "0.7 at a grade of 70";
}

TEST(ReviewText, NumberFormAndMasks) {
    EXPECT_EQ(NumberForm(5), " 5");
    EXPECT_EQ(NumberForm(0), " 0");
    EXPECT_EQ(NumberForm(-3), "-3");
    EXPECT_EQ(PercentText(2.0F / 3.0F), "66.7%");
    EXPECT_EQ(PercentText(1.0F), "100.0%");
    EXPECT_EQ(PercentText(0.0625F), "6.3%");
    EXPECT_EQ(WholePercentText(70), "70%");
    EXPECT_EQ(WholePercentText(0), "%");
    EXPECT_EQ(ClockText(0), "0:00:00");
    EXPECT_EQ(ClockText((3600.0 + 62.0) / 86400.0), "1:01:02");
    EXPECT_EQ(ClockText(46000.0 + 0.5), "12:00:00") << "the date part is not shown";
    EXPECT_EQ(ClockText(1.0 + 59.6 / 86400.0), "0:01:00");
}

TEST(Gauge, BarStandsOnTheBottomLineAndTheArrowPointsAtTheGrade) {
    const GaugeBar full = GaugeBarGeometry(20, 200, 1.0F);
    EXPECT_EQ(full.top, 20);
    EXPECT_EQ(full.height, 200);
    const GaugeBar empty = GaugeBarGeometry(20, 200, 0.0F);
    EXPECT_EQ(empty.top, 220);
    EXPECT_EQ(empty.height, 0);
    EXPECT_EQ(GaugeBarGeometry(20, 200, 0.75F).top, 70);
    EXPECT_EQ(PassMarkTop(20, 200, 70, 30), 70);
}

TEST(CoinToss, SurvivorIsDrawnAgainUntilMarked) {
    FakeRandom random;
    random.script({0.1, 0.3, 0.9});
    EXPECT_EQ(DrawCoinTossSurvivor({false, false, false, true}, random), 3);
    EXPECT_EQ(random.calls(), 3);
    random.script({0.3});
    EXPECT_EQ(DrawCoinTossSurvivor({false, true, false, true}, random), 1);
    EXPECT_EQ(DrawCoinTossSurvivor({false, false, false, false}, random), -1);
}

TEST(CoinToss, CutLeavesABlankLineWhereTheAnswerStood) {
    std::string question = "Which is real property?\r\n\\par A. A lease\r\n\\par B. Land\r\n"
                           "\\par C. A car\r\n\\par D. Cash\r\n\\par ";
    CutAnswerText(question, 0, "\r\n");
    CutAnswerText(question, 2, "\r\n");
    EXPECT_EQ(question, "Which is real property?\r\n\\\r\n\\par B. Land\r\n\\\r\n"
                        "\\par D. Cash\r\n\\par ");
    const std::string before = question;
    CutAnswerText(question, 0, "\r\n");
    EXPECT_EQ(question, before) << "an answer already cut is passed over";
}

} // namespace
} // namespace tessera
