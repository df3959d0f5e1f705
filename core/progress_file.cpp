#include "core/progress_file.h"

#include "core/progress_file_detail.h"
#include "core/record_file.h"

#include <algorithm>

namespace tessera {

namespace detail {

uint8_t HeaderByte(int recordNumber) {
    return recordNumber >= 1 && recordNumber <= HighestSuspendedRecord
               ? static_cast<uint8_t>(recordNumber)
               : 0;
}

bool PointsAtRecordOfKind(const RecordFile& file, int recordNumber, bool exam) {
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
int RecordToWrite(const RecordFile& file, int suspended, bool exam) {
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

} // namespace

SaveResult SaveReviewTest(SessionState& state, bool finished, DateValue today) {
    ReviewTestRecord& record = state.Buffers.review;
    FillReviewTestRecord(state, DateText(today), record);
    RecordFile file(ProgressFile, true);
    if (!file.isOpen())
        return {SaveStatus::FileFailed, 0};
    const int number = RecordToWrite(file, state.SuspendedTestRecord, false);
    state.SuspendedTestRecord = static_cast<int16_t>(number);
    if (!file.write(number, EncodeReviewTest(record)))
        return {SaveStatus::FileFailed, number};

    ProgressHeader& header = state.Buffers.header;
    header = DecodeHeader(file.read(1));
    if (finished) {
        state.SuspendedTestRecord = 0;
        state.TestFurthest = 0;
        state.TestPosition = 0;
    }
    header.SuspendedTestRecord = HeaderByte(state.SuspendedTestRecord);
    if (CounterInRange(state.CurrentTopic))
        header.TakeCounts[state.CurrentTopic] =
            static_cast<uint8_t>(state.TakeCounts[state.CurrentTopic]);
    if (!file.write(1, EncodeHeader(header)))
        return {SaveStatus::FileFailed, number};
    return {StatusOf(state.SuspendedTestRecord), number};
}

SaveResult SaveExam(SessionState& state, bool finished, DateValue today) {
    ExamRecord& record = state.Buffers.exam;
    FillExamRecord(state, DateText(today), record);
    RecordFile file(ProgressFile, true);
    if (!file.isOpen())
        return {SaveStatus::FileFailed, 0};
    const int number = RecordToWrite(file, state.SuspendedExamRecord, true);
    state.SuspendedExamRecord = static_cast<int16_t>(number);
    if (!file.write(number, EncodeExam(record)))
        return {SaveStatus::FileFailed, number};

    ProgressHeader& header = state.Buffers.header;
    header = DecodeHeader(file.read(1));
    if (finished) {
        state.SuspendedExamRecord = 0;
        state.ExamPosition = 0;
    }
    header.SuspendedExamRecord = HeaderByte(state.SuspendedExamRecord);
    const int counter = state.ExamKind + 9;
    if (CounterInRange(counter))
        header.TakeCounts[counter] = static_cast<uint8_t>(state.TakeCounts[counter]);
    if (!file.write(1, EncodeHeader(header)))
        return {SaveStatus::FileFailed, number};
    return {StatusOf(state.SuspendedExamRecord), number};
}

void AppendProgressLog(int code, float score, DateValue today) {
    RecordFile file(ProgressFile, true);
    ProgressHeader header = DecodeHeader(file.read(1));
    for (int slot = 1; slot <= LogSlotCount; ++slot) {
        if (header.LogDates[slot][0] != '\0')
            continue;
        header.LogDates[slot] = DateText(today);
        header.LogCodes[slot] = static_cast<uint8_t>(code);
        header.LogScores[slot] = score;
        file.write(1, EncodeHeader(header));
        return;
    }
}

void SavePreferences(const SessionState& state) {
    RecordFile file(ProgressFile, true);
    ProgressHeader header = DecodeHeader(file.read(1));
    header.ScrambleQuestions = state.ScrambleQuestions ? 1 : 0;
    header.SoundOn = state.SoundOn ? 1 : 0;
    header.TimerActive = state.TimerActive ? 1 : 0;
    header.IncludeProgressReport = state.IncludeProgressReport ? 1 : 0;
    header.PassingGrade = static_cast<uint8_t>(state.PassingGrade);
    file.write(1, EncodeHeader(header));
}

ProgressHeader ReadProgressHeader() {
    const RecordFile file(ProgressFile, false);
    return DecodeHeader(file.read(1));
}

void WriteProgressHeader(const ProgressHeader& header) {
    RecordFile file(ProgressFile, true);
    file.write(1, EncodeHeader(header));
}

int ProgressRecordCount() {
    const RecordFile file(ProgressFile, false);
    return file.recordCount();
}

std::vector<ReviewTestRecord> ReadReviewTestRecords() {
    const RecordFile file(ProgressFile, false);
    std::vector<ReviewTestRecord> records;
    for (int n = 2; n <= file.recordCount(); ++n) {
        const RecordBytes bytes = file.read(n);
        if (IsReviewTestByte(bytes[0]))
            records.push_back(DecodeReviewTest(bytes));
    }
    return records;
}

std::vector<ExamRecord> ReadExamRecords() {
    const RecordFile file(ProgressFile, false);
    std::vector<ExamRecord> records;
    for (int n = 2; n <= file.recordCount(); ++n) {
        const RecordBytes bytes = file.read(n);
        if (IsExamByte(bytes[0]))
            records.push_back(DecodeExam(bytes));
    }
    return records;
}

void RestoreSuspended(SessionState& state) {
    const RecordFile file(ProgressFile, false);
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
