#pragma once
// The screening exam report card without widgets: its rows and their texts, the totals line,
// the five sorts, erasing, the "Include" choices a row allows, the retake it starts and the
// stored exam it puts back into the session for Results.

#include "core/records.h"
#include "core/session_state.h"

#include <array>
#include <string>
#include <vector>

namespace tessera {

// One row of the card. The record carries the card's tables (RowDate, RowScore, RowAsked,
// RowAnswered, RowUnsure, RowScrambled, RowMinutes, RowElapsed, RowKind, RowType,
// RowStructured, the topic flags, and the items and answer codes), so they move together.
struct ScoringRow {
    ExamRecord record;
    int loaded = 0; // RowLoaded: the exam's ordinal among the records read
};

// Rows in the order of the file. Records of a kind other than 10, 11 or 12 are left out;
// counts beyond the 300 positions are cut to them, and positions past RowAsked read as empty.
std::vector<ScoringRow> LoadScoringRows(const std::vector<ExamRecord>& records);

// RowTopics: " 1, 3, 9" for topics 1, 3 and 9, empty when no flag is set.
std::string TopicsText(const ScoringRow& row);

// The row's line in List1, 83 fixed-pitch columns.
std::string ScoringRowText(const ScoringRow& row);

// Label1(10): "Total:" with no row, otherwise the sums under the rows' columns.
std::string ScoringTotalsText(const std::vector<ScoringRow>& rows);

// Label1(8) for the selected row; "Topics Covered: " alone when nothing is selected.
std::string TopicsCoveredText(const ScoringRow* row);

// Option1(0) to (4).
enum class ScoringSort { EarliestDate, LatestDate, PercentCorrect, QuestionsAsked, PercentUnsure };

// Whether the upper row and the row a gap below it stand in the wrong order. Dates compare as
// text, month first, so a January row comes before the December of the year before.
bool ScoringRowsStandWrong(ScoringSort sort, const ScoringRow& upper, const ScoringRow& lower);

// GapSort of all rows; rows with equal keys are never exchanged.
void SortScoringRows(std::vector<ScoringRow>& rows, ScoringSort sort);

// Takes out row `row` (from 1); returns the row to select next: the one above, or the top
// row, or 0 when none is left. The file is not touched.
int EraseScoringRow(std::vector<ScoringRow>& rows, int row);

// The records the card keeps, in its order, for the rewrite of the progress file: topic flags
// exactly 1 for a topic named and 0 for the others, positions past RowAsked empty.
std::vector<ExamRecord> KeptExamRecords(const std::vector<ScoringRow>& rows);

// Option2(0) to (2): what a retake asks.
enum class ExamRetake { AllQuestions, MissedQuestions, UnsureQuestions };

// Which "Include" choices the row allows. takeCount is TakeCounts of its kind and fullLength
// the length of an author-prepared exam (0 for a custom one): after three counted takes a
// retake must not again ask all of a full exam.
std::array<bool, 3> OfferedExamRetakes(const ScoringRow& row, int takeCount, int fullLength);

// ExamTopics from the row's topics text: all False, then True for each topic it names.
void MarkIncludedTopics(SessionState& state, const ScoringRow& row);

// Sets up the session for a retake of the row, as ExamTest expects it on opening: a new record,
// the chosen positions in their order, ExamType 4, 5 or 6.
void BuildExamRetake(SessionState& state, const ScoringRow& row, ExamRetake choice);

// Puts the stored exam into the session as Results reads it. ExamScrambled and
// ExamAnswerCounts are left as they stand.
void LoadStoredExam(SessionState& state, const ScoringRow& row);

} // namespace tessera
