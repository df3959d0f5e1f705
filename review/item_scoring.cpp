#include "review/item_scoring.h"

#include "review/review_test.h"
#include "review/review_text.h"

#include <array>
#include <cmath>

namespace tessera {

const std::string& FeedbackPhrase(int index) {
    static const std::array<std::string, 3> phrases = {
        " is the best choice.", " is not the best choice.", " is not the best choice either."};
    return phrases.at(static_cast<size_t>(index));
}

AnswerVerdict JudgeAnswer(SessionState& state, int letter, int rightAnswer) {
    AnswerVerdict verdict;
    ++state.TestTally[3];
    std::string phrase;
    if (letter != rightAnswer) {
        verdict.colour = WrongColour;
        if (state.ActiveWish != 2) {
            const int misses = ++state.TestMisses[state.TestPosition];
            phrase = FeedbackPhrase(misses == 1 ? 1 : 2);
            if (misses == 1)
                ++state.TestTally[2];
            else if (misses == 2)
                ++state.TestTally[4]; // a wild guess: still unsure after being told
        }
        // A free guess forgives this answer; either way the wish is used up now.
        state.ActiveWish = 0;
    } else {
        verdict.right = true;
        verdict.colour = RightColour;
        phrase = FeedbackPhrase(0);
        if (state.TestMisses[state.TestPosition] == 0)
            ++state.TestTally[1];
    }
    verdict.feedback = "<" + std::string(1, static_cast<char>(letter)) + ">" + phrase;
    if (!verdict.right)
        verdict.feedback += " Try Again...";
    return verdict;
}

PerformanceLabels UpdatePerformance(SessionState& state) {
    PerformanceLabels labels;
    labels.right = "Right:" + NumberForm(state.TestTally[1]);
    labels.wrong = "Wrong:" + NumberForm(state.TestTally[2]);
    labels.tries = "Tries:" + NumberForm(state.TestTally[3]);
    const int scored = state.TestTally[1] + state.TestTally[2];
    if (scored < 1)
        return labels;
    labels.scored = true;
    state.TestScore = static_cast<float>(state.TestTally[1]) / static_cast<float>(scored);
    labels.scoreColour =
        PassesGrade(state.TestScore, state.PassingGrade) ? PassingColour : WrongColour;
    labels.score = PercentText(state.TestScore);
    labels.wildGuesses = "Wild Guesses:" + NumberForm(state.TestTally[4]);
    return labels;
}

void AddElapsed(SessionState& state, DateValue days) {
    state.TestElapsed += days;
}

GaugeBar GaugeBarGeometry(int gaugeTop, int gaugeHeight, float score) {
    GaugeBar bar;
    bar.height = static_cast<int>(std::lround(static_cast<float>(gaugeHeight) * score));
    bar.top = gaugeTop + gaugeHeight - bar.height;
    return bar;
}

int PassMarkTop(int gaugeTop, int gaugeHeight, int passingGrade, int labelHeight) {
    const double fromTop = (1.0 - passingGrade / 100.0) * gaugeHeight;
    return static_cast<int>(std::lround(fromTop + gaugeTop - labelHeight / 3.0));
}

} // namespace tessera
