#pragma once
// The journal of the running review test or exam: after every answer the record that a break
// would save goes whole into TesseraJournal, so that a crash or a power cut costs at most one
// answer. Every normal save or close removes it; the next start replays one that is left.

#include "core/date_value.h"
#include "core/session_state.h"

namespace tessera {

inline constexpr const char* JournalFile = "TesseraJournal";

// Journals the review test in progress; false when the journal could not be written.
bool JournalReviewTest(const SessionState& state, DateValue today);
// Journals the exam in progress, scored as a break would score it; the session is not changed.
bool JournalExam(SessionState& state, DateValue today);
// A normal save or close: the progress file holds the run now, or the run is gone.
void DropJournal();

enum class Replayed { Nothing, ReviewTest, Exam };

// Start-up, after the suspended test and exam are restored: a whole journal becomes the
// suspended test or exam, in the progress file and in the session, and is removed. A journal
// that is cut off or does not add up is removed unread.
Replayed ReplayJournal(SessionState& state, DateValue today);

} // namespace tessera
