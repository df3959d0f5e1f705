// RefreshNavigation's rules: captions and enabled states from the take counters and the
// suspended test and exam.

#include "core/navigation.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

class NavigationTest : public testing::Test {
protected:
    NavigationTest() { FillCatalogue(state); }
    void setTopicCounts(int16_t count) {
        for (int t = 1; t <= TopicCount; ++t)
            state.TakeCounts[t] = count;
    }
    SessionState state;
};

TEST_F(NavigationTest, FirstRunOffersEveryTopicForItsFirstDrill) {
    const NavigationView view = ComputeNavigation(state);
    EXPECT_EQ(view.reviewOption, (CaptionState{"Topic &Review Test", true}));
    EXPECT_EQ(view.examOption, (CaptionState{"&Screening Exam", true}));
    ASSERT_TRUE(view.topics);
    EXPECT_EQ((*view.topics)[0], (CaptionState{"Definitions - 1st Drill", true}));
    EXPECT_EQ((*view.topics)[8],
              (CaptionState{"Brokerage: Responsibilities and Functions of Salespersons - 1st Drill",
                            true}));
    EXPECT_TRUE(view.reviewCardEnabled);
    EXPECT_TRUE(view.examCardEnabled);
}

TEST_F(NavigationTest, EachDrillCountHasItsSuffixAndTheThirdClosesTheTopic) {
    const std::vector<std::pair<int16_t, CaptionState>> cases = {
        {0, {"Financing Real Estate - 1st Drill", true}},
        {1, {"Financing Real Estate - 2nd Drill", true}},
        {2, {"Financing Real Estate - Last Drill", true}},
        {3, {"Financing Real Estate - Finished", false}},
        {7, {"Financing Real Estate - Finished", false}},
    };
    for (const auto& [count, expected] : cases) {
        state.TakeCounts[5] = count;
        const NavigationView view = ComputeNavigation(state);
        ASSERT_TRUE(view.topics);
        EXPECT_EQ((*view.topics)[4], expected) << "take count " << count;
        EXPECT_TRUE((*view.topics)[3].enabled) << "the other topics stay available";
    }
}

TEST_F(NavigationTest, AllTopicsDrilledThreeTimesClosesReviews) {
    setTopicCounts(3);
    const NavigationView view = ComputeNavigation(state);
    EXPECT_EQ(view.reviewOption, (CaptionState{"All Topics Reviewed Three Times", false}));
    EXPECT_FALSE(view.topics);
    EXPECT_TRUE(view.reviewCardEnabled);

    state.TakeCounts[9] = 2; // one short of the full 27
    EXPECT_TRUE(ComputeNavigation(state).reviewOption.enabled);
}

TEST_F(NavigationTest, AllExamsTakenThreeTimesClosesExams) {
    state.TakeCounts[10] = 3;
    state.TakeCounts[11] = 3;
    state.TakeCounts[12] = 2;
    EXPECT_EQ(ComputeNavigation(state).examOption, (CaptionState{"&Screening Exam", true}));
    state.TakeCounts[12] = 3;
    EXPECT_EQ(ComputeNavigation(state).examOption,
              (CaptionState{"All Exams Taken Three Times", false}));
}

TEST_F(NavigationTest, SuspendedTestAndExamOfferToResumeAndLockTheirReportCards) {
    state.TestPosition = 12;
    state.CurrentTopic = 3;
    state.TestType = 1;
    state.ExamPosition = 40;
    state.ExamType = 5;
    setTopicCounts(3); // a suspended test outranks the finished course

    const NavigationView view = ComputeNavigation(state);
    EXPECT_EQ(view.reviewOption, (CaptionState{"Resume Topic 3 &Review, All Items", true}));
    EXPECT_EQ(view.examOption, (CaptionState{"Resume &Screening Exam, Retake Missed Items", true}));
    EXPECT_FALSE(view.topics);
    EXPECT_FALSE(view.reviewCardEnabled);
    EXPECT_FALSE(view.examCardEnabled);
}

TEST_F(NavigationTest, OnlyTheSuspendedKindLocksItsCard) {
    state.ExamPosition = 1;
    state.ExamType = 3;
    const NavigationView view = ComputeNavigation(state);
    EXPECT_TRUE(view.reviewCardEnabled);
    EXPECT_FALSE(view.examCardEnabled);
    EXPECT_EQ(view.examOption.caption, "Resume &Screening Exam, Custom Built");
    EXPECT_EQ(view.reviewOption.caption, "Topic &Review Test");
}

} // namespace
