#pragma once
// The operations that write the progress file TesseraConfig.MS; nothing else changes a record.
// Each reads the file whole by bare name in the current directory, changes it in memory and
// writes it whole through NewConfig, so that a crash leaves the old file or the new one.

#include "core/records.h"
#include "core/session_state.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessera {

inline constexpr const char* ProgressFile = "TesseraConfig.MS";
inline constexpr const char* NewProgressFile = "NewConfig";

// A suspended record number lives in one header byte, so only records 2 to 255 can be pointed
// at. A test broken off at a higher record number is still written in full, and the session
// keeps its number, so it resumes in this run; only the header cannot point at it, and after
// the program ends it stands on the report card as an unfinished test. The screen tells the
// candidate with SuspendedBeyondHeaderMessage. Nothing of the work is lost.
inline constexpr int HighestSuspendedRecord = 255;

enum class SaveStatus {
    Saved,
    SuspendedBeyondHeader, // saved, but resumable only until the program ends
    FileFailed,            // the progress file could not be opened or written
};

inline constexpr const char* SuspendedBeyondHeaderTitle = "Progress File Full!";
inline constexpr const char* SuspendedBeyondHeaderMessage =
    "Your work is saved, but your progress file holds too many tests for this one to be "
    "resumed after you quit. Finish it before you close the program, or erase older tests "
    "from a report card.";

struct LogEntry {
    int code = 0; // 1 to 9 a topic, 10 to 12 an exam
    float score = 0;
};

struct SaveResult {
    SaveStatus status = SaveStatus::Saved;
    int recordNumber = 0; // the record written
};

// Writes the review test in progress; a finished test clears SuspendedTestRecord, TestFurthest
// and TestPosition. Stores TakeCounts(CurrentTopic) in its counter byte.
// A finished run's log entry goes with its save, so that a save that fails files neither.
SaveResult SaveReviewTest(SessionState& state, bool finished, DateValue today,
                          const std::optional<LogEntry>& log = std::nullopt);

// What a finished exam files with its record: its log entry, and a take on its counter (the
// counter byte goes up in the file; the session's count is the caller's to raise).
struct ExamFiling {
    std::optional<LogEntry> log;
    bool countTake = false;
};

// What a finished exam files beside its record, planned from the score it was just given.
using ExamFilingPlan = std::function<ExamFiling(float score)>;

// Writes the exam in progress (scoring it, see FillExamRecord); a finished exam clears
// SuspendedExamRecord and ExamPosition. The record number written is returned, since an exam
// under 30% is removed again. A finished exam's filing goes in the same header write as the
// record, so that a save that fails files none of it.
SaveResult SaveExam(SessionState& state, bool finished, DateValue today,
                    const ExamFilingPlan& plan = {});

// Writes a record as it stands as the suspended test or exam of its kind, as a break would;
// start-up does so with the journal of a run that a crash broke off.
SaveResult SaveSuspendedRecord(SessionState& state, const RecordBytes& record, DateValue today);

// Files one log entry in the first free slot of 36; with none free the entry is dropped.
// Every operation that writes returns false, or FileFailed, when the file kept its old state.
bool AppendProgressLog(int code, float score, DateValue today);

// Writes the four option flags and the passing grade; header bytes 0 to 4 only.
bool SavePreferences(const SessionState& state);

// Rewrites the file after a report card erased rows: the header, then the card's records in
// the card's order, then the records of the other kind in their old order. The suspended
// record of the other kind follows its record, in the session and in the header. The file as
// it stood goes to the Backups folder first, named by `now`.
SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ReviewTestRecord>& kept,
                               DateValue now);
SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ExamRecord>& kept,
                               DateValue now);

// Takes one record out, after a backup as a rewrite; suspended records behind it move up by one.
SaveStatus RemoveProgressRecord(SessionState& state, int recordNumber, DateValue now);

// Reads: a missing or short file reads as zeros, so a missing file is a first run.
ProgressHeader ReadProgressHeader();
bool WriteProgressHeader(const ProgressHeader& header);
int ProgressRecordCount();
std::vector<ReviewTestRecord>
ReadReviewTestRecords();                   // records 2 on with a first byte of 9 or less
std::vector<ExamRecord> ReadExamRecords(); // records 2 on with a first byte above 9

// Start-up: puts the suspended test and exam the header points at back into the session and
// sets SuspendedTestRecord and SuspendedExamRecord. A number that points outside the file, at
// the header or at a record of the other kind is ignored.
void RestoreSuspended(SessionState& state);

// Start-up: a complete NewConfig left by a crash with no progress file becomes the progress
// file; a NewConfig beside an intact progress file is an unfinished rewrite and is deleted.
void RecoverProgressFile();

} // namespace tessera
