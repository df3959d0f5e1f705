#include "review/review_test.h"

#include "platform/random_source.h"
#include "review/review_text.h"

#include <algorithm>
#include <utility>

namespace tessera {

std::string TestHeading(int testType) {
    switch (testType) {
    case RetakeAllTest:
        return "Retake of All Items";
    case RetakeMissedTest:
        return "Retake of Missed Items";
    case RetakeWildGuessesTest:
        return "Retake of Wild Guesses";
    default:
        return "All Items Review Test";
    }
}

int AllItemsWishStock(int itemCount) {
    return itemCount / 40 + 1;
}

int RetakeWishStock(int itemCount) {
    return std::max(1, itemCount / 40);
}

void ScrambleTestItems(SessionState& state, Random& random) {
    const int n = state.TestItemCount;
    for (int i = 1; i <= n; ++i) {
        const int r = std::clamp(static_cast<int>(random.next() * n) + 1, 1, n);
        std::swap(state.TestItems[r], state.TestItems[i]);
    }
}

void BuildAllItemsTest(SessionState& state, Random& random, double secondsSinceMidnight) {
    const int t = state.CurrentTopic;
    state.TestPosition = 1;
    state.SuspendedTestRecord = 0;
    state.TestFurthest = 0;
    state.TestType = AllItemsTest;
    state.TestElapsed = 0;
    state.TestMisses.fill(0);

    // Tables hold 300 positions; a topic larger than that is cut to fit.
    const int count = std::min<int>(state.content.ItemCounts[t][1], ExamItemLimit);
    state.TestItemCount = static_cast<int16_t>(count);
    const int first = RunningItemNumber(state.content, t, 1);
    for (int j = 1; j <= count; ++j)
        state.TestItems[j] = static_cast<int16_t>(first + j - 1);

    state.WishesLeft.fill(0);
    for (int i = 1; i <= 3; ++i)
        state.WishesLeft[i] = static_cast<int16_t>(AllItemsWishStock(count));

    if (state.ScrambleQuestions) {
        random.seed(static_cast<uint32_t>(secondsSinceMidnight));
        ScrambleTestItems(state, random);
    }
}

void BuildRetake(SessionState& state, int topic, std::span<const int16_t> items,
                 std::span<const int16_t> misses, RetakeChoice choice) {
    state.TestMisses.fill(0);
    state.TestTally.fill(0);

    const int least = choice == RetakeChoice::MissedQuestions ? 1
                      : choice == RetakeChoice::WildGuesses   ? 2
                                                              : 0;
    int count = 0;
    const size_t n = std::min({items.size(), misses.size(), size_t{ExamItemLimit}});
    for (size_t k = 0; k < n; ++k) {
        if (misses[k] >= least)
            state.TestItems[++count] = items[k];
    }
    state.TestItemCount = static_cast<int16_t>(count);
    state.TestType = choice == RetakeChoice::AllQuestions      ? RetakeAllTest
                     : choice == RetakeChoice::MissedQuestions ? RetakeMissedTest
                                                               : RetakeWildGuessesTest;

    state.CurrentTopic = static_cast<int16_t>(topic);
    state.TestFurthest = 0;
    state.TestPosition = 1;
    state.TestElapsed = 0;
    state.TestScore = 0;
    for (int i = 1; i <= 3; ++i)
        state.WishesLeft[i] = static_cast<int16_t>(RetakeWishStock(count));
}

bool PassesGrade(float score, int passingGrade) {
    const float percent = score * 100.0F;
    return percent >= static_cast<float>(passingGrade);
}

bool DrillCounts(float score, int passingGrade) {
    const float percent = score * 100.0F;
    return percent >= 70.0F || percent >= static_cast<float>(passingGrade);
}

bool LogsDrill(int testType, int takeCount) {
    return takeCount < 3 && testType == AllItemsTest;
}

int MissedPositions(const SessionState& state) {
    int missed = 0;
    for (int p = 1; p <= state.TestItemCount && p <= ExamItemLimit; ++p) {
        if (state.TestMisses[p] != 0)
            ++missed;
    }
    return missed;
}

std::string FinishedMessageText(bool passed, int missed, const std::string& crLf) {
    std::string text = passed ? "Congratulations! You passed this review test."
                              : "Sorry, you failed this review test.";
    text += crLf + "You missed" + NumberForm(missed);
    text += missed == 1 ? " question." : " questions.";
    return text;
}

UnloadPlan PlanUnload(bool cancelCaption, bool answered, int testFurthest) {
    if (cancelCaption)
        return {};
    UnloadPlan plan;
    plan.save = true;
    if (answered) {
        plan.furthest = static_cast<int16_t>(testFurthest == 0 ? 1 : testFurthest);
        plan.position = plan.furthest;
    } else if (testFurthest == 0) {
        // A retake closed before its first answer: it stays as it was built, at item 1 and
        // open, so that resuming it is the same as starting it (see review/DESIGN.md).
        plan.furthest = 0;
        plan.position = 1;
    } else {
        plan.furthest = static_cast<int16_t>(testFurthest - 1);
        plan.position = plan.furthest;
    }
    return plan;
}

} // namespace tessera
