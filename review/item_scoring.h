#pragma once
// Scoring of one item: what an answer does to the tallies, and what the "Performance" panel shows.

#include "core/session_state.h"

#include <string>

namespace tessera {

// Colour values that carry meaning.
enum ColourValue : int {
    NeutralColour = 0,
    WrongColour = 255,
    PassingColour = 65280,
    RightColour = 32768,
};

// Letter codes of the answers: 65 for A up to 68 for D.
inline constexpr int AnswerCount = 4;
inline constexpr int FirstLetter = 65;

// The three feedback phrases, 0: right, 1: a first miss, 2: a further miss.
const std::string& FeedbackPhrase(int index);

struct AnswerVerdict {
    bool right = false;
    std::string feedback; // the caption of Label2
    int colour = NeutralColour;
};

// Counts the try, the miss or the first-try right answer for TestPosition, honours an armed
// free guess, and builds the feedback line. The item's time is the caller's.
AnswerVerdict JudgeAnswer(SessionState& state, int letter, int rightAnswer);

// The labels of the "Performance" panel. The score and the wild guesses are only refreshed once
// an item has been scored; before that they keep what they showed.
struct PerformanceLabels {
    std::string right;
    std::string wrong;
    std::string tries;
    bool scored = false;
    std::string score;
    int scoreColour = NeutralColour;
    std::string wildGuesses;
};

// Recomputes TestScore from the tally.
PerformanceLabels UpdatePerformance(SessionState& state);

// Adds a time span to TestElapsed.
void AddElapsed(SessionState& state, DateValue days);

// Where the gauge's bar stands: on the bottom line, as tall as the share of the gauge.
struct GaugeBar {
    int top = 0;
    int height = 0;
};
GaugeBar GaugeBarGeometry(int gaugeTop, int gaugeHeight, float score);

// The top of the pass mark label, whose arrow points at the grade on the gauge.
int PassMarkTop(int gaugeTop, int gaugeHeight, int passingGrade, int labelHeight);

} // namespace tessera
