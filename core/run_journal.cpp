#include "core/run_journal.h"

#include "core/progress_file.h"
#include "core/records.h"
#include "platform/file_system.h"

#include <QByteArrayView>

#include <algorithm>

namespace tessera {

namespace {

// The record, the number of the record it replaces (0: a new one), two bytes each little-endian,
// and a check over both.
constexpr std::size_t JournalSize = RecordSize + 2 + 2;

uint16_t Check(std::string_view bytes) {
    return qChecksum(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

void PutInt16(std::string& bytes, uint16_t value) {
    bytes.push_back(static_cast<char>(value & 0xFF));
    bytes.push_back(static_cast<char>(value >> 8));
}

uint16_t Int16At(const std::string& bytes, std::size_t at) {
    return static_cast<uint16_t>(static_cast<uint8_t>(bytes[at]) |
                                 static_cast<uint8_t>(bytes[at + 1]) << 8);
}

bool WriteJournal(const RecordBytes& record, int suspended) {
    std::string bytes(record.begin(), record.end());
    PutInt16(bytes, static_cast<uint16_t>(std::max(suspended, 0)));
    PutInt16(bytes, Check(bytes));
    return WriteWhole(Files(), JournalFile, bytes);
}

} // namespace

bool JournalReviewTest(const SessionState& state, DateValue today) {
    ReviewTestRecord record = state.Buffers.review;
    FillReviewTestRecord(state, DateText(today), record);
    return WriteJournal(EncodeReviewTest(record), state.SuspendedTestRecord);
}

bool JournalExam(SessionState& state, DateValue today) {
    // Scoring clears what is not committed; the running exam keeps it.
    const auto answers = state.ExamAnswers;
    const auto unsure = state.ExamUnsure;
    const auto counts = state.ExamAnswerCounts;
    const float score = state.ExamScore;
    ExamRecord record = state.Buffers.exam;
    FillExamRecord(state, DateText(today), record);
    state.ExamAnswers = answers;
    state.ExamUnsure = unsure;
    state.ExamAnswerCounts = counts;
    state.ExamScore = score;
    return WriteJournal(EncodeExam(record), state.SuspendedExamRecord);
}

void DropJournal() {
    if (!Files().exists(JournalFile) || Files().remove(JournalFile))
        return;
    // A journal the folder will not let go of is emptied: the next start reads it as cut off
    // and replays nothing over the run that was saved.
    WriteWhole(Files(), JournalFile, {});
}

Replayed ReplayJournal(SessionState& state, DateValue today) {
    const std::optional<std::string> bytes = Files().read(JournalFile);
    if (!bytes)
        return Replayed::Nothing;
    const bool whole = bytes->size() == JournalSize &&
                       Check(std::string_view(*bytes).substr(0, JournalSize - 2)) ==
                           Int16At(*bytes, JournalSize - 2);
    if (!whole) {
        DropJournal();
        return Replayed::Nothing;
    }
    RecordBytes record{};
    std::copy_n(bytes->begin(), RecordSize, record.begin());
    const auto replaces = static_cast<int16_t>(Int16At(*bytes, RecordSize));
    const bool exam = IsExamByte(record[0]);
    // The record it replaces must still be the suspended one of its kind; otherwise it is new.
    const int16_t suspended = exam ? state.SuspendedExamRecord : state.SuspendedTestRecord;
    const int16_t number = replaces == suspended ? replaces : 0;
    if (exam) {
        RestoreExam(DecodeExam(record), state);
        state.SuspendedExamRecord = number;
    } else {
        RestoreReviewTest(DecodeReviewTest(record), state);
        state.SuspendedTestRecord = number;
    }
    // A journal that cannot go into the file yet stays for the next start; this run has the
    // test or exam in the session all the same.
    if (SaveSuspendedRecord(state, record, today).status != SaveStatus::FileFailed)
        DropJournal();
    return exam ? Replayed::Exam : Replayed::ReviewTest;
}

} // namespace tessera
