// The operations that take records out of the progress file. Each writes NewConfig completely,
// flushes it to the disk and renames it over TesseraConfig.MS, so a crash at any moment leaves
// either the old file or the new one.

#include "core/progress_file.h"
#include "core/progress_file_detail.h"
#include "core/record_file.h"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessera {

namespace {

using detail::HeaderByte;

// Flushes NewConfig, renames it over the progress file and makes the rename itself durable.
SaveStatus Commit(RecordFile& fresh) {
    if (!fresh.sync())
        return SaveStatus::FileFailed;
    if (std::rename(NewProgressFile, ProgressFile) != 0)
        return SaveStatus::FileFailed;
    const int folder = ::open(".", O_RDONLY | O_CLOEXEC);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    return SaveStatus::Saved;
}

RecordBytes Encode(const ReviewTestRecord& record) {
    return EncodeReviewTest(record);
}

RecordBytes Encode(const ExamRecord& record) {
    return EncodeExam(record);
}

template <class Record>
SaveStatus Rewrite(SessionState& state, const std::vector<Record>& kept, bool keptAreExams) {
    const RecordFile old(ProgressFile, false);
    if (!old.isOpen())
        return SaveStatus::FileFailed;
    RecordFile fresh(NewProgressFile, true);
    if (!fresh.isOpen() || !fresh.truncate(0))
        return SaveStatus::FileFailed;

    int written = 0;
    bool ok = fresh.write(++written, old.read(1));
    for (const Record& record : kept)
        ok = ok && fresh.write(++written, Encode(record));

    // The records of the other kind follow in their old order; the suspended one among them
    // takes its new number, compared once with the number as it stood before the walk.
    int16_t& suspended = keptAreExams ? state.SuspendedTestRecord : state.SuspendedExamRecord;
    const int suspendedBefore = suspended;
    int ordinal = 0;
    for (int n = 2; n <= old.recordCount(); ++n) {
        const RecordBytes bytes = old.read(n);
        if (IsExamByte(bytes[0]) == keptAreExams)
            continue;
        ++ordinal;
        ok = ok && fresh.write(++written, bytes);
        if (n == suspendedBefore)
            suspended = static_cast<int16_t>(static_cast<int>(kept.size()) + ordinal + 1);
    }

    ProgressHeader header = DecodeHeader(fresh.read(1));
    (keptAreExams ? header.SuspendedTestRecord : header.SuspendedExamRecord) =
        HeaderByte(suspended);
    ok = ok && fresh.write(1, EncodeHeader(header));
    if (!ok)
        return SaveStatus::FileFailed;
    return Commit(fresh);
}

// The record number a suspended record has once record `removed` is gone.
int16_t AfterRemoval(int16_t suspended, int removed) {
    if (suspended == removed)
        return 0;
    return suspended > removed ? static_cast<int16_t>(suspended - 1) : suspended;
}

} // namespace

SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ReviewTestRecord>& kept) {
    return Rewrite(state, kept, false);
}

SaveStatus RewriteProgressFile(SessionState& state, const std::vector<ExamRecord>& kept) {
    return Rewrite(state, kept, true);
}

SaveStatus RemoveProgressRecord(SessionState& state, int recordNumber) {
    const RecordFile old(ProgressFile, false);
    if (!old.isOpen())
        return SaveStatus::FileFailed;
    const int count = old.recordCount();
    if (recordNumber < 2 || recordNumber > count)
        return SaveStatus::Saved;
    RecordFile fresh(NewProgressFile, true);
    if (!fresh.isOpen() || !fresh.truncate(0))
        return SaveStatus::FileFailed;

    int written = 0;
    bool ok = true;
    for (int n = 1; n <= count; ++n)
        if (n != recordNumber)
            ok = ok && fresh.write(++written, old.read(n));

    state.SuspendedTestRecord = AfterRemoval(state.SuspendedTestRecord, recordNumber);
    state.SuspendedExamRecord = AfterRemoval(state.SuspendedExamRecord, recordNumber);
    ProgressHeader header = DecodeHeader(fresh.read(1));
    header.SuspendedTestRecord = HeaderByte(state.SuspendedTestRecord);
    header.SuspendedExamRecord = HeaderByte(state.SuspendedExamRecord);
    ok = ok && fresh.write(1, EncodeHeader(header));
    if (!ok)
        return SaveStatus::FileFailed;
    return Commit(fresh);
}

void RecoverProgressFile() {
    struct stat info {};
    if (::stat(NewProgressFile, &info) != 0)
        return;
    if (::stat(ProgressFile, &info) == 0) {
        std::remove(NewProgressFile);
        return;
    }
    ::stat(NewProgressFile, &info);
    if (info.st_size >= RecordSize)
        std::rename(NewProgressFile, ProgressFile);
}

} // namespace tessera
