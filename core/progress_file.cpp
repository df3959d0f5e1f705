#include "core/progress_file.h"

#include "core/progress_file_detail.h"
#include "core/progress_image.h"

#include <algorithm>

namespace tessera {

namespace detail {

uint8_t HeaderByte(int recordNumber) {
    return recordNumber >= 1 && recordNumber <= HighestSuspendedRecord
               ? static_cast<uint8_t>(recordNumber)
               : 0;
}

bool PointsAtRecordOfKind(const ProgressImage& file, int recordNumber, bool exam) {
    if (recordNumber < 2 || recordNumber > file.recordCount())
        return false;
    return IsExamByte(file.read(recordNumber)[0]) == exam;
}

} // namespace detail

namespace {

using detail::HeaderByte;
using detail::PointsAtRecordOfKind;

// Where a save writes: the suspended record if the session has one, otherwise a new record
// behind the last one. The header is record 1 even in a file too short to hold it.
int RecordToWrite(const ProgressImage& file, int suspended, bool exam) {
    if (PointsAtRecordOfKind(file, suspended, exam))
        return suspended;
    return std::max(file.recordCount(), 1) + 1;
}

SaveStatus StatusOf(int suspended) {
    return suspended > HighestSuspendedRecord ? SaveStatus::SuspendedBeyondHeader
                                              : SaveStatus::Saved;
}

bool CounterInRange(int counter) {
    return counter >= 1 && counter <= TakeCounterCount;
}

// Files the entry in the first free slot; false when all 36 are taken.
bool FileLogEntry(ProgressHeader& header, const LogEntry& entry, DateValue today) {
    for (int slot = 1; slot <= LogSlotCount; ++slot) {
        if (header.LogDates[slot][0] != '\0')
            continue;
        header.LogDates[slot] = DateText(today);
        header.LogCodes[slot] = static_cast<uint8_t>(entry.code);
        header.LogScores[slot] = entry.score;
        return true;
    }
    return false;
}

// The save of a test or an exam: its record, then the header with the suspended number, the
// take counter and the log entry, written in one go. The session changes only once the file
// holds it all.
SaveResult SaveRecord(SessionState& state, const RecordBytes& record, int16_t& suspended, bool exam,
                      int counter, bool finished, DateValue today,
                      const std::optional<LogEntry>& log, bool countTake = false) {
    ProgressImage file = ProgressImage::load();
    const int number = RecordToWrite(file, suspended, exam);
    file.write(number, record);

    ProgressHeader& header = state.Buffers.header;
    header = DecodeHeader(file.read(1));
    const int16_t stays = finished ? 0 : static_cast<int16_t>(number);
    (exam ? header.SuspendedExamRecord : header.SuspendedTestRecord) = HeaderByte(stays);
    if (CounterInRange(counter))
        header.TakeCounts[counter] =
            static_cast<uint8_t>(state.TakeCounts[counter] + (countTake ? 1 : 0));
    if (log)
        FileLogEntry(header, *log, today);
    file.write(1, EncodeHeader(header));
    if (!file.commit())
        return {SaveStatus::FileFailed, number};
    suspended = stays;
    return {StatusOf(stays), number};
}

} // namespace

SaveResult SaveReviewTest(SessionState& state, bool finished, DateValue today,
                          const std::optional<LogEntry>& log) {
    ReviewTestRecord& record = state.Buffers.review;
    FillReviewTestRecord(state, DateText(today), record);
    const SaveResult result = SaveRecord(state, EncodeReviewTest(record), state.SuspendedTestRecord,
                                         false, state.CurrentTopic, finished, today, log);
    if (finished && result.status != SaveStatus::FileFailed) {
        state.TestFurthest = 0;
        state.TestPosition = 0;
    }
    return result;
}

SaveResult SaveExam(SessionState& state, bool finished, DateValue today,
                    const ExamFilingPlan& plan) {
    ExamRecord& record = state.Buffers.exam;
    FillExamRecord(state, DateText(today), record);
    const ExamFiling filing = finished && plan ? plan(state.ExamScore) : ExamFiling{};
    const SaveResult result =
        SaveRecord(state, EncodeExam(record), state.SuspendedExamRecord, true, state.ExamKind + 9,
                   finished, today, filing.log, filing.countTake);
    if (finished && result.status != SaveStatus::FileFailed)
        state.ExamPosition = 0;
    return result;
}

SaveResult SaveSuspendedRecord(SessionState& state, const RecordBytes& record, DateValue today) {
    if (IsExamByte(record[0]))
        return SaveRecord(state, record, state.SuspendedExamRecord, true, state.ExamKind + 9, false,
                          today, std::nullopt);
    return SaveRecord(state, record, state.SuspendedTestRecord, false, state.CurrentTopic, false,
                      today, std::nullopt);
}

bool AppendProgressLog(int code, float score, DateValue today) {
    ProgressImage file = ProgressImage::load();
    ProgressHeader header = DecodeHeader(file.read(1));
    if (!FileLogEntry(header, {code, score}, today))
        return true; // all slots taken: the entry is dropped and nothing changes
    file.write(1, EncodeHeader(header));
    return file.commit();
}

bool SavePreferences(const SessionState& state) {
    ProgressImage file = ProgressImage::load();
    ProgressHeader header = DecodeHeader(file.read(1));
    header.ScrambleQuestions = state.ScrambleQuestions ? 1 : 0;
    header.SoundOn = state.SoundOn ? 1 : 0;
    header.TimerActive = state.TimerActive ? 1 : 0;
    header.IncludeProgressReport = state.IncludeProgressReport ? 1 : 0;
    header.PassingGrade = static_cast<uint8_t>(state.PassingGrade);
    file.write(1, EncodeHeader(header));
    return file.commit();
}

ProgressHeader ReadProgressHeader() {
    return DecodeHeader(ProgressImage::load().read(1));
}

bool WriteProgressHeader(const ProgressHeader& header) {
    ProgressImage file = ProgressImage::load();
    file.write(1, EncodeHeader(header));
    return file.commit();
}

int ProgressRecordCount() {
    return ProgressImage::load().recordCount();
}

std::vector<ReviewTestRecord> ReadReviewTestRecords() {
    const ProgressImage file = ProgressImage::load();
    std::vector<ReviewTestRecord> records;
    for (int n = 2; n <= file.recordCount(); ++n) {
        const RecordBytes bytes = file.read(n);
        if (IsReviewTestByte(bytes[0]))
            records.push_back(DecodeReviewTest(bytes));
    }
    return records;
}

std::vector<ExamRecord> ReadExamRecords() {
    const ProgressImage file = ProgressImage::load();
    std::vector<ExamRecord> records;
    for (int n = 2; n <= file.recordCount(); ++n) {
        const RecordBytes bytes = file.read(n);
        if (IsExamByte(bytes[0]))
            records.push_back(DecodeExam(bytes));
    }
    return records;
}

void RestoreSuspended(SessionState& state) {
    const ProgressImage file = ProgressImage::load();
    const ProgressHeader header = DecodeHeader(file.read(1));
    state.SuspendedTestRecord = 0;
    state.SuspendedExamRecord = 0;
    if (PointsAtRecordOfKind(file, header.SuspendedTestRecord, false)) {
        state.SuspendedTestRecord = header.SuspendedTestRecord;
        state.Buffers.review = DecodeReviewTest(file.read(header.SuspendedTestRecord));
        RestoreReviewTest(state.Buffers.review, state);
    }
    if (PointsAtRecordOfKind(file, header.SuspendedExamRecord, true)) {
        state.SuspendedExamRecord = header.SuspendedExamRecord;
        state.Buffers.exam = DecodeExam(file.read(header.SuspendedExamRecord));
        RestoreExam(state.Buffers.exam, state);
    }
}

} // namespace tessera
