#include "exam/draw_exam.h"

#include "core/gap_sort.h"
#include "core/session_state.h"
#include "platform/clock.h"
#include "platform/random_source.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace tessera {

int DrawInRange(Random& random, int n) {
    const int r = static_cast<int>(random.next() * n) + 1;
    return std::min(r, n);
}

namespace {

void ClearExamTables(SessionState& state) {
    state.ExamPool.fill(0);
    state.ExamItems.fill(0);
    state.ExamAnswers.fill(0);
    state.ExamUnsure.fill(0);
    state.ExamKey.fill(0);
    state.ExamAnswerCounts.fill(0);
    state.ExamAnswered.fill(0);
}

void DrawCustomExam(SessionState& state, Random& random) {
    const auto& counts = state.content.ItemCounts;
    int c = 0;
    int base = 0;
    for (int t = 1; t <= TopicCount; ++t) {
        if (state.ExamTopics[t]) {
            for (int j = 1; j <= counts[t][1] && c < ReviewItemLimit; ++j) {
                state.ExamPool[++c] = static_cast<int16_t>(base + j);
            }
        }
        base += counts[t][1];
    }
    // Each exchange draws over the whole pool, also for the last entries.
    for (int i = 1; i <= c; ++i) {
        std::swap(state.ExamPool[i], state.ExamPool[DrawInRange(random, c)]);
    }
    const int n = std::min<int>(state.ExamItemCount, c);
    for (int i = 1; i <= n; ++i) {
        state.ExamItems[i] = state.ExamPool[i];
    }
    if (!state.ExamScrambled) {
        auto& items = state.ExamItems;
        GapSort(
            n, [&](int i, int j) { return items[i] > items[j]; },
            [&](int i, int j) { std::swap(items[i], items[j]); });
    }
}

void DrawAuthorExam(SessionState& state, Random& random) {
    int base = 0;
    for (int e = 1; e < state.ExamKind; ++e) {
        base += state.content.ItemCounts[e][2];
    }
    const int n = state.ExamItemCount;
    for (int i = 1; i <= n; ++i) {
        state.ExamItems[i] = static_cast<int16_t>(base + i);
    }
    if (state.ExamScrambled) {
        for (int i = 1; i <= n; ++i) {
            std::swap(state.ExamItems[i], state.ExamItems[DrawInRange(random, n)]);
        }
    }
}

} // namespace

void DrawExam(SessionState& state, Random& random, const Clock& clock) {
    ClearExamTables(state);
    random.seed(static_cast<uint32_t>(clock.secondsSinceMidnight() * 100.0));
    if (state.ExamKind == 3) {
        DrawCustomExam(state, random);
    } else {
        DrawAuthorExam(state, random);
    }
}

} // namespace tessera
