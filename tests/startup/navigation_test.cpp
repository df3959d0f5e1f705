// The navigation screen's captions and enabled states from the take counters and the suspended
// test and exam.

#include "core/navigation.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

std::string Shown(const CaptionState& c) {
    return c.caption + (c.enabled ? "" : " (off)");
}

// The two options, the two report cards (x for enabled), the Financing button and the topics
// that are enabled; "-" when the topic buttons are left as they were.
std::string Rendered(const NavigationView& view) {
    std::string text = Shown(view.reviewOption) + " | " + Shown(view.examOption) + " | " +
                       (view.reviewCardEnabled ? "x" : "-") + (view.examCardEnabled ? "x" : "-");
    if (!view.topics)
        return text + " | -";
    text += " | " + (*view.topics)[4].caption + " | ";
    for (const CaptionState& topic : *view.topics)
        text += topic.enabled ? 'x' : '-';
    return text;
}

TEST(Navigation, CaptionsAndEnablingFollowTheCountersAndWhatIsSuspended) {
    const std::string Options = "Topic &Review Test | &Screening Exam | xx";
    const std::string Financing = " | Financing Real Estate - ";
    // The counters of topics 1 to 9 and Exams I to III; a suspended test's topic and type; a
    // suspended exam's type.
    const std::tuple<const char*, int, int, int, std::string> cases[] = {
        {"000000000000", 0, 0, 0, Options + Financing + "1st Drill | xxxxxxxxx"},
        {"000010000000", 0, 0, 0, Options + Financing + "2nd Drill | xxxxxxxxx"},
        {"000020000000", 0, 0, 0, Options + Financing + "Last Drill | xxxxxxxxx"},
        {"000030000000", 0, 0, 0, Options + Financing + "Finished | xxxx-xxxx"},
        {"333333332332", 0, 0, 0, Options + Financing + "Finished | --------x"},
        {"333333333332", 0, 0, 0,
         "All Topics Reviewed Three Times (off) | &Screening Exam | xx | -"},
        {"000000000333", 0, 0, 0,
         "Topic &Review Test | All Exams Taken Three Times (off) | xx" + Financing +
             "1st Drill | xxxxxxxxx"},
        // A suspended test outranks the finished course, and locks its report card.
        {"333333333000", 3, 1, 5,
         "Resume Topic 3 &Review, All Items | Resume &Screening Exam, Retake Missed Items | -- | "
         "-"},
        {"000000000000", 0, 0, 3,
         "Topic &Review Test | Resume &Screening Exam, Custom Built | x-" + Financing +
             "1st Drill | xxxxxxxxx"},
    };
    for (const auto& [takes, topic, testType, examType, expected] : cases) {
        SessionState state;
        FillCatalogue(state);
        for (int counter = 1; counter <= 12; ++counter)
            state.TakeCounts[counter] = static_cast<int16_t>(takes[counter - 1] - '0');
        state.TestPosition = topic == 0 ? 0 : 12;
        state.CurrentTopic = static_cast<int16_t>(topic == 0 ? 1 : topic);
        state.TestType = static_cast<int16_t>(testType);
        state.ExamPosition = examType == 0 ? 0 : 40;
        state.ExamType = static_cast<int16_t>(examType);
        EXPECT_EQ(Rendered(ComputeNavigation(state)), expected) << takes;
    }
}

} // namespace
