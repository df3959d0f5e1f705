#pragma once
// The review test report card without widgets: its rows and their texts, the totals line, the
// five sorts, erasing, the "Include" choices a row allows, and the retake it starts.

#include "core/records.h"
#include "core/session_state.h"
#include "review/review_test.h"

#include <array>
#include <string>
#include <vector>

namespace tessera {

// One row of the card. The record carries the card's tables (topic, type, date, score, asked,
// tries, scrambled, minutes, and the item and wrong-tries columns), so they move together.
struct CardRow {
    ReviewTestRecord record;
    int wild = 0; // CardWild: positions with more than one wrong try
    int key = 0;  // CardKey: the row's number at loading
};

// Rows in the order of the file, keyed 1, 2, ...
std::vector<CardRow> LoadCardRows(const std::vector<ReviewTestRecord>& records);

// "h:mm:ss" of a time used in minutes; seconds that round to 60 carry into the minutes.
std::string FormatTimeUsed(float minutes);

// The row's line in List1.
std::string CardRowText(const CardRow& row);

// Label2: "Total:" with no row, otherwise the totals weighted by items.
std::string CardTotalsText(const std::vector<CardRow>& rows);

// Label3 for a selected row of topic t.
std::string RelatedTopicText(int topic, const std::string& title);

// Option1(0) to (4).
enum class CardSort { EarliestDate, LatestDate, PercentCorrect, TopicSequence, PercentWild };

// Whether the upper row and the row a gap below it stand in the wrong order.
bool CardRowsStandWrong(CardSort sort, const CardRow& upper, const CardRow& lower);

// GapSort of all rows; equal keys are never exchanged.
void SortCardRows(std::vector<CardRow>& rows, CardSort sort);

// Takes out row `row` (from 1); returns the row to select next: the one above, or the top
// row, or 0 when none is left.
int EraseCardRow(std::vector<CardRow>& rows, int row);

// The records the card keeps, in its order, for the rewrite of the progress file.
std::vector<ReviewTestRecord> KeptRecords(const std::vector<CardRow>& rows);

// Which of "All Questions", "Missed Questions", "Wild Guesses" a row allows. takeCount is
// TakeCounts of its topic and topicItems its number of items: after three drills a retake must
// not amount to a further complete one.
std::array<bool, 3> OfferedRetakes(const CardRow& row, int takeCount, int topicItems);

// Sets up the session for a retake of the row, as Quiz800 expects it on opening.
void BuildCardRetake(SessionState& state, const CardRow& row, RetakeChoice choice);

} // namespace tessera
