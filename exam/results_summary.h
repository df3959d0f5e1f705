#pragma once
// The figures of a finished exam as Results shows them, counted afresh from the session:
// the summary labels, the list rows, the sort into running order and the note of "&Done".

#include "core/date_value.h"

#include <array>
#include <string>

namespace tessera {

struct SessionState;

struct ResultsTally {
    int answered = 0;
    int unsure = 0;
    int missed = 0; // wrong or not answered
};

// Rebuilds ExamKey from the item texts and counts; an item not answered counts as missed.
ResultsTally CountResults(SessionState& state);

// The six lines of the "Scoring Summary", figures from column 15 on.
std::array<std::string, 6> SummaryLines(const ResultsTally& tally, int itemCount,
                                        DateValue elapsed);

// A row of the list: position in 3 columns, the right letter, the letter given and "?".
std::string ResultRowText(int position, int key, int answer, bool unsure);

// "&Sort": positions into running order by ExamItems, key, answer and mark moving along.
void SortResults(SessionState& state);

// The question of "&Done": the note by the rule of 30%, then how to go on.
std::string DoneQuestion(float score, const std::string& crLf);

} // namespace tessera
