#include "exam/results_summary.h"

#include "core/gap_sort.h"
#include "core/session_state.h"
#include "exam/exam_format.h"
#include "exam/exam_items.h"

#include <utility>

namespace tessera {

ResultsTally CountResults(SessionState& state) {
    state.ExamKey.fill(0);
    ResultsTally tally;
    for (int p = 1; p <= state.ExamItemCount; ++p) {
        state.ExamKey[p] = static_cast<int16_t>(ExamKeyOf(ExamItemText(state, p)));
        if (state.ExamAnswers[p] != 0) {
            ++tally.answered;
            if (state.ExamUnsure[p] != 0) {
                ++tally.unsure;
            }
            if (state.ExamAnswers[p] != state.ExamKey[p]) {
                ++tally.missed;
            }
        } else {
            ++tally.missed;
        }
    }
    return tally;
}

std::array<std::string, 6> SummaryLines(const ResultsTally& tally, int itemCount,
                                        DateValue elapsed) {
    const int correct = itemCount - tally.missed;
    const double items = itemCount > 0 ? itemCount : 1;
    return {
        "Answered" + std::string(6, ' ') + CountColumns(tally.answered),
        "Not Answered" + std::string(2, ' ') + CountColumns(itemCount - tally.answered),
        "   Total" + std::string(6, ' ') + CountColumns(itemCount),
        "Correct" + std::string(7, ' ') + CountColumns(correct) + "   " +
            ShareText(correct / items),
        "Unsure" + std::string(8, ' ') + CountColumns(tally.unsure) + "   " +
            ShareText(tally.unsure / items),
        "Time Used" + std::string(5, ' ') + HoursMinutesSeconds(elapsed),
    };
}

std::string ResultRowText(int position, int key, int answer, bool unsure) {
    std::string row =
        RightAligned(std::to_string(position), 3) + "   " + ChoiceLetter(key) + std::string(4, ' ');
    if (answer != 0) {
        row += ChoiceLetter(answer);
        if (unsure) {
            row += '?';
        }
    }
    return row;
}

void SortResults(SessionState& state) {
    auto& s = state;
    GapSort(
        s.ExamItemCount, [&](int i, int j) { return s.ExamItems[i] > s.ExamItems[j]; },
        [&](int i, int j) {
            std::swap(s.ExamItems[i], s.ExamItems[j]);
            std::swap(s.ExamKey[i], s.ExamKey[j]);
            std::swap(s.ExamAnswers[i], s.ExamAnswers[j]);
            std::swap(s.ExamUnsure[i], s.ExamUnsure[j]);
        });
}

std::string DoneQuestion(float score, const std::string& crLf) {
    const std::string note =
        score >= 0.3f ? "Note: You can review the results of this test later using the report "
                        "card."
                      : "Note: You scored less than 30% correct. Therefore, the results of this "
                        "test have not been added to your report card.";
    return note + crLf + "Press O.K. to stop viewing scoring results or Cancel to keep working.";
}

} // namespace tessera
