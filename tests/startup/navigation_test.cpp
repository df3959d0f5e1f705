// RefreshNavigation's rules: captions and enabled states from the take counters and the
// suspended test and exam.

#include "core/navigation.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

struct NavigationCase {
    const char* takes;  // the counters of topics 1 to 9, then of Exams I to III
    int suspendedTopic; // with its test type; 0: no test suspended
    int testType;
    int examType; // of a suspended exam; 0: none
    CaptionState review;
    CaptionState exam;
    const char* topicFive; // the Financing button's drill; nullptr: the buttons are left
    bool reviewCard;
    bool examCard;
};

const CaptionState Review{"Topic &Review Test", true};
const CaptionState Exam{"&Screening Exam", true};
const CaptionState ReviewsDone{"All Topics Reviewed Three Times", false};
const CaptionState ExamsDone{"All Exams Taken Three Times", false};
const CaptionState ResumeTest{"Resume Topic 3 &Review, All Items", true};
const CaptionState ResumeRetake{"Resume &Screening Exam, Retake Missed Items", true};
const CaptionState ResumeCustom{"Resume &Screening Exam, Custom Built", true};

TEST(Navigation, CaptionsAndEnablingFollowTheCountersAndWhatIsSuspended) {
    const NavigationCase cases[] = {
        {"000000000000", 0, 0, 0, Review, Exam, "1st Drill", true, true},
        {"000010000000", 0, 0, 0, Review, Exam, "2nd Drill", true, true},
        {"000020000000", 0, 0, 0, Review, Exam, "Last Drill", true, true},
        {"000030000000", 0, 0, 0, Review, Exam, "Finished", true, true},
        {"000070000000", 0, 0, 0, Review, Exam, "Finished", true, true},
        {"333333332332", 0, 0, 0, Review, Exam, "Finished", true, true},
        {"333333333332", 0, 0, 0, ReviewsDone, Exam, nullptr, true, true},
        {"000000000333", 0, 0, 0, Review, ExamsDone, "1st Drill", true, true},
        // A suspended test outranks the finished course, and locks its report card.
        {"333333333000", 3, 1, 5, ResumeTest, ResumeRetake, nullptr, false, false},
        {"000000000000", 0, 0, 3, Review, ResumeCustom, "1st Drill", true, false},
    };
    for (const NavigationCase& c : cases) {
        SessionState state;
        FillCatalogue(state);
        for (int counter = 1; counter <= 12; ++counter)
            state.TakeCounts[counter] = static_cast<int16_t>(c.takes[counter - 1] - '0');
        state.TestPosition = c.suspendedTopic == 0 ? 0 : 12;
        state.CurrentTopic = static_cast<int16_t>(c.suspendedTopic == 0 ? 1 : c.suspendedTopic);
        state.TestType = static_cast<int16_t>(c.testType);
        state.ExamPosition = c.examType == 0 ? 0 : 40;
        state.ExamType = static_cast<int16_t>(c.examType);

        const NavigationView view = ComputeNavigation(state);
        SCOPED_TRACE(c.takes);
        EXPECT_EQ(view.reviewOption, c.review);
        EXPECT_EQ(view.examOption, c.exam);
        EXPECT_EQ(view.reviewCardEnabled, c.reviewCard);
        EXPECT_EQ(view.examCardEnabled, c.examCard);
        ASSERT_EQ(view.topics.has_value(), c.topicFive != nullptr);
        if (!view.topics)
            continue;
        EXPECT_EQ((*view.topics)[4].caption, std::string("Financing Real Estate - ") + c.topicFive);
        for (int topic = 1; topic <= TopicCount; ++topic)
            EXPECT_EQ((*view.topics)[topic - 1].enabled, state.TakeCounts[topic] < 3) << topic;
    }
}

} // namespace
