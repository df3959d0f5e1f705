// The operations that take records out of the progress file. Each backs the file up, writes
// NewConfig completely, flushes it to the disk and renames it over TesseraConfig.MS, so a crash
// at any moment leaves either the old file or the new one.

#include "core/progress_backups.h"
#include "core/progress_file.h"
#include "core/progress_file_detail.h"
#include "core/progress_image.h"
#include "platform/file_system.h"

namespace tessera {

namespace {

using detail::HeaderByte;

RecordBytes Encode(const ReviewTestRecord& record) {
    return EncodeReviewTest(record);
}

RecordBytes Encode(const ExamRecord& record) {
    return EncodeExam(record);
}

template <class Record>
SaveStatus Rewrite(SessionState& state, const std::vector<Record>& kept, bool keptAreExams) {
    if (!Files().exists(ProgressFile))
        return SaveStatus::FileFailed;
    const ProgressImage old = ProgressImage::load();
    ProgressImage fresh;
    int written = 0;
    fresh.write(++written, old.read(1));
    for (const Record& record : kept)
        fresh.write(++written, Encode(record));

    // The records of the other kind follow in their old order; the suspended one among them
    // takes its new number, compared once with the number as it stood before the walk.
    int16_t& suspendedNow = keptAreExams ? state.SuspendedTestRecord : state.SuspendedExamRecord;
    const int suspendedBefore = suspendedNow;
    int16_t suspended = suspendedNow;
    int ordinal = 0;
    for (int n = 2; n <= old.recordCount(); ++n) {
        const RecordBytes bytes = old.read(n);
        if (IsExamByte(bytes[0]) == keptAreExams)
            continue;
        ++ordinal;
        fresh.write(++written, bytes);
        if (n == suspendedBefore)
            suspended = static_cast<int16_t>(static_cast<int>(kept.size()) + ordinal + 1);
    }

    ProgressHeader header = DecodeHeader(fresh.read(1));
    (keptAreExams ? header.SuspendedTestRecord : header.SuspendedExamRecord) =
        HeaderByte(suspended);
    fresh.write(1, EncodeHeader(header));
    if (!fresh.commit())
        return SaveStatus::FileFailed;
    suspendedNow = suspended;
    return SaveStatus::Saved;
}

// The record number a suspended record has once record `removed` is gone.
int16_t AfterRemoval(int16_t suspended, int removed) {
    if (suspended == removed)
        return 0;
    return suspended > removed ? static_cast<int16_t>(suspended - 1) : suspended;
}

} // namespace

SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ReviewTestRecord>& kept,
                               DateValue now) {
    BackupProgressFile(now);
    return Rewrite(state, kept, false);
}

SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ExamRecord>& kept,
                               DateValue now) {
    BackupProgressFile(now);
    return Rewrite(state, kept, true);
}

SaveStatus RemoveProgressRecord(SessionState& state, int recordNumber, DateValue now) {
    const ProgressImage old = ProgressImage::load();
    const int count = old.recordCount();
    if (recordNumber < 2 || recordNumber > count)
        return SaveStatus::Saved;
    BackupProgressFile(now);
    ProgressImage fresh;
    int written = 0;
    for (int n = 1; n <= count; ++n)
        if (n != recordNumber)
            fresh.write(++written, old.read(n));

    const int16_t test = AfterRemoval(state.SuspendedTestRecord, recordNumber);
    const int16_t exam = AfterRemoval(state.SuspendedExamRecord, recordNumber);
    ProgressHeader header = DecodeHeader(fresh.read(1));
    header.SuspendedTestRecord = HeaderByte(test);
    header.SuspendedExamRecord = HeaderByte(exam);
    fresh.write(1, EncodeHeader(header));
    if (!fresh.commit())
        return SaveStatus::FileFailed;
    state.SuspendedTestRecord = test;
    state.SuspendedExamRecord = exam;
    return SaveStatus::Saved;
}

void RecoverProgressFile() {
    FileSystem& files = Files();
    if (!files.exists(NewProgressFile))
        return;
    if (files.exists(ProgressFile)) {
        files.remove(NewProgressFile);
        return;
    }
    if (files.read(NewProgressFile).value_or(std::string()).size() >= RecordSize)
        files.rename(NewProgressFile, ProgressFile);
}

} // namespace tessera
