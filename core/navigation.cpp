#include "core/navigation.h"

#include <numeric>

namespace tessera {

namespace {

constexpr int AllTopicsDone = 3 * TopicCount;
constexpr int AllExamsDone = 3 * 3;

template <size_t N> const std::string& nameAt(const std::array<std::string, N>& names, int index) {
    static const std::string none;
    return index >= 0 && index < static_cast<int>(N) ? names[index] : none;
}

} // namespace

std::string DrillSuffix(int takeCount) {
    switch (takeCount) {
    case 0:
        return " - 1st Drill";
    case 1:
        return " - 2nd Drill";
    case 2:
        return " - Last Drill";
    default:
        return " - Finished";
    }
}

NavigationView ComputeNavigation(const SessionState& state) {
    const CourseCatalogue& catalogue = state.catalogue;
    NavigationView view;

    if (state.TestPosition != 0) {
        view.reviewOption = {"Resume Topic " + std::to_string(state.CurrentTopic) + " &Review, " +
                                 nameAt(catalogue.TestTypeNames, state.TestType),
                             true};
        view.reviewCardEnabled = false;
    } else {
        const int drills = std::accumulate(state.TakeCounts.begin() + 1,
                                           state.TakeCounts.begin() + 1 + TopicCount, 0);
        if (drills == AllTopicsDone) {
            view.reviewOption = {"All Topics Reviewed Three Times", false};
        } else {
            view.reviewOption = {"Topic &Review Test", true};
            std::array<CaptionState, TopicCount> topics;
            for (int t = 1; t <= TopicCount; ++t) {
                const int taken = state.TakeCounts[t];
                topics[t - 1] = {catalogue.TopicTitles[t] + DrillSuffix(taken), taken < 3};
            }
            view.topics = topics;
        }
    }

    if (state.ExamPosition != 0) {
        view.examOption = {"Resume &Screening Exam, " + nameAt(catalogue.ExamNames, state.ExamType),
                           true};
        view.examCardEnabled = false;
    } else {
        const int exams =
            std::accumulate(state.TakeCounts.begin() + TopicCount + 1, state.TakeCounts.end(), 0);
        view.examOption = exams == AllExamsDone ? CaptionState{"All Exams Taken Three Times", false}
                                                : CaptionState{"&Screening Exam", true};
    }
    return view;
}

bool DisplayLargeEnough(int width, int height) {
    return width >= 800 && height >= 600;
}

} // namespace tessera
