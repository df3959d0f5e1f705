#include "core/progress_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

using namespace tessera;

namespace {

using Bytes = std::vector<uint8_t>;

Bytes ReadFile(const char* name) {
    std::ifstream in(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void WriteFile(const char* name, const Bytes& bytes) {
    std::ofstream out(name, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
}

void Append(Bytes& file, const RecordBytes& record) {
    file.insert(file.end(), record.begin(), record.end());
}

Bytes Record(const Bytes& file, int n) {
    return {file.begin() + (n - 1) * RecordSize, file.begin() + n * RecordSize};
}

RecordBytes RecordAt(const Bytes& file, int n) {
    RecordBytes record{};
    std::copy_n(file.begin() + (n - 1) * RecordSize, RecordSize, record.begin());
    return record;
}

// A header as a first run leaves it, with the reserved tail and a flag byte of 2 that every
// operation has to pass through.
ProgressHeader StartedHeader() {
    ProgressHeader h;
    h.UserName = "Pat Doe";
    h.ScrambleQuestions = 2;
    h.PassingGrade = 70;
    for (int i = 0; i < ReservedHeaderBytes; ++i)
        h.Reserved[i] = static_cast<uint8_t>(i * 7 + 3);
    return h;
}

ReviewTestRecord TestOfTopic(int topic) {
    ReviewTestRecord r;
    r.Topic = static_cast<uint8_t>(topic);
    r.Date = "03-04-2026";
    r.ItemCount = 2;
    r.Items[1] = static_cast<int16_t>(topic * 10);
    return r;
}

ExamRecord ExamOfKind(int kind) {
    ExamRecord e;
    e.Kind = static_cast<uint8_t>(kind + 9);
    e.Date = "05-06-2026";
    e.ItemCount = 3;
    e.Items[3] = static_cast<int16_t>(kind * 100);
    return e;
}

class ProgressFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::remove(ProgressFile);
        std::remove(NewProgressFile);
        FillCatalogue(state);
        state.CurrentTopic = 3;
        state.TestItemCount = 2;
        state.TestPosition = 1;
        state.TestItems = {0, 5, 6};
    }
    void StartFile() {
        Bytes file;
        Append(file, EncodeHeader(StartedHeader()));
        WriteFile(ProgressFile, file);
    }

    SessionState state;
    const DateValue today = DateFromParts(2026, 11, 19);
};

} // namespace

TEST_F(ProgressFileTest, ABrokenOffTestKeepsOneRecordUntilItIsFinished) {
    WriteFile(ProgressFile, Bytes(RecordSize, 0)); // a first run's file
    state.TakeCounts[3] = 2;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 2);
    state.TestPosition = 2;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 2);
    Bytes file = ReadFile(ProgressFile);
    ASSERT_EQ(file.size(), 2u * RecordSize) << "breaking off twice overwrites the same record";
    EXPECT_EQ(file[5], 2);
    EXPECT_EQ(file[37 + 2], 2) << "TakeCounts(3) in its counter byte";
    EXPECT_EQ(DecodeReviewTest(RecordAt(file, 2)).Position, 2);
    EXPECT_EQ(std::string(file.begin() + RecordSize + 1, file.begin() + RecordSize + 11),
              "11-19-2026");

    const SaveResult finished = SaveReviewTest(state, true, today);
    EXPECT_EQ(finished.recordNumber, 2);
    EXPECT_EQ(state.TestPosition, 0);
    EXPECT_EQ(state.SuspendedTestRecord, 0);
    EXPECT_EQ(ReadFile(ProgressFile)[5], 0);
    state.TestPosition = 1;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 3) << "the next test is new";
}

TEST_F(ProgressFileTest, HeaderOperationsTouchOnlyTheirOwnBytes) {
    StartFile();
    const Bytes before = ReadFile(ProgressFile);
    AppendProgressLog(11, 0.75f, today);
    Bytes after = ReadFile(ProgressFile);
    for (size_t i = 0; i < after.size(); ++i) {
        const bool slotOne = (i >= 49 && i < 59) || i == 409 || (i >= 445 && i < 449);
        if (!slotOne) {
            EXPECT_EQ(after[i], before[i]) << "byte " << i;
        }
    }
    EXPECT_EQ(std::string(after.begin() + 49, after.begin() + 59), "11-19-2026");
    EXPECT_EQ(after[409], 11);
    EXPECT_EQ(DecodeHeader(RecordAt(after, 1)).LogScores[1], 0.75f);

    for (int i = 2; i <= LogSlotCount; ++i)
        AppendProgressLog(i % 12 + 1, 0.5f, today);
    const Bytes full = ReadFile(ProgressFile);
    AppendProgressLog(4, 1.0f, today);
    EXPECT_EQ(ReadFile(ProgressFile), full) << "with all 36 slots taken nothing changes";

    state.SoundOn = true;
    state.PassingGrade = 75;
    SavePreferences(state);
    after = ReadFile(ProgressFile);
    EXPECT_EQ((Bytes{after[0], after[1], after[2], after[3], after[4]}), (Bytes{0, 1, 0, 0, 75}));
    EXPECT_TRUE(std::equal(after.begin() + 5, after.end(), full.begin() + 5));

    state.ExamItemCount = 2;
    state.ExamAnswered = {0, 1, 1};
    SaveExam(state, true, today);
    SaveReviewTest(state, false, today);
    after = ReadFile(ProgressFile);
    EXPECT_TRUE(std::equal(after.begin() + 589, after.begin() + RecordSize, full.begin() + 589))
        << "the reserved tail passes through every save";
    EXPECT_EQ(after[0], 0);
}

TEST_F(ProgressFileTest, ExamCardRewriteMovesTheSuspendedTestAlong) {
    ProgressHeader h = StartedHeader();
    h.SuspendedTestRecord = 4;
    Bytes file;
    Append(file, EncodeHeader(h));
    Append(file, EncodeExam(ExamOfKind(1)));
    Append(file, EncodeReviewTest(TestOfTopic(2)));
    Append(file, EncodeReviewTest(TestOfTopic(5))); // suspended
    Append(file, EncodeExam(ExamOfKind(3)));
    WriteFile(ProgressFile, file);
    state.SuspendedTestRecord = 4;

    // The card kept only the custom exam: it comes first, the two tests follow.
    ASSERT_EQ(RewriteProgressFile(state, std::vector<ExamRecord>{ExamOfKind(3)}, today),
              SaveStatus::Saved);
    Bytes expected;
    h.SuspendedTestRecord = 4; // 1 kept + ordinal 2 + 1
    Append(expected, EncodeHeader(h));
    Append(expected, EncodeExam(ExamOfKind(3)));
    Append(expected, EncodeReviewTest(TestOfTopic(2)));
    Append(expected, EncodeReviewTest(TestOfTopic(5)));
    EXPECT_EQ(ReadFile(ProgressFile), expected);

    ASSERT_EQ(RewriteProgressFile(state, std::vector<ExamRecord>{}, today), SaveStatus::Saved);
    const Bytes after = ReadFile(ProgressFile);
    ASSERT_EQ(after.size(), 3u * RecordSize);
    EXPECT_EQ(state.SuspendedTestRecord, 3);
    EXPECT_EQ(after[5], 3);
    EXPECT_EQ(Record(after, 3), Record(expected, 4));
    EXPECT_FALSE(std::ifstream(NewProgressFile).good());
}

TEST_F(ProgressFileTest, ReviewCardRewriteAndRemovalMoveTheSuspendedExam) {
    ProgressHeader h = StartedHeader();
    h.SuspendedExamRecord = 3;
    Bytes file;
    Append(file, EncodeHeader(h));
    Append(file, EncodeReviewTest(TestOfTopic(1)));
    Append(file, EncodeExam(ExamOfKind(2))); // suspended
    Append(file, EncodeReviewTest(TestOfTopic(4)));
    WriteFile(ProgressFile, file);
    state.SuspendedExamRecord = 3;

    const std::vector<ReviewTestRecord> kept{TestOfTopic(4), TestOfTopic(7), TestOfTopic(1)};
    ASSERT_EQ(RewriteProgressFile(state, kept, today), SaveStatus::Saved);
    Bytes after = ReadFile(ProgressFile);
    EXPECT_EQ(state.SuspendedExamRecord, 5);
    EXPECT_EQ(after[6], 5);
    EXPECT_EQ(after[5], 0);
    EXPECT_EQ(Record(after, 2)[0], 4);
    EXPECT_EQ(Record(after, 5), Record(file, 3));

    ASSERT_EQ(RemoveProgressRecord(state, 3, today), SaveStatus::Saved);
    after = ReadFile(ProgressFile);
    ASSERT_EQ(after.size(), 4u * RecordSize);
    EXPECT_EQ(state.SuspendedExamRecord, 4);
    EXPECT_EQ(after[6], 4);
    EXPECT_EQ(Record(after, 3)[0], 1);
    EXPECT_EQ(Record(after, 4), Record(file, 3));
    EXPECT_TRUE(std::equal(after.begin() + 7, after.begin() + RecordSize, file.begin() + 7));
}

TEST_F(ProgressFileTest, ATestBeyondRecord255IsSavedAndKeptForThisRun) {
    Bytes file;
    Append(file, EncodeHeader(StartedHeader()));
    for (int n = 2; n <= 255; ++n)
        Append(file, EncodeExam(ExamOfKind(1)));
    WriteFile(ProgressFile, file);
    SaveResult result = SaveReviewTest(state, false, today);
    EXPECT_EQ(result.status, SaveStatus::SuspendedBeyondHeader);
    EXPECT_EQ(result.recordNumber, 256);
    EXPECT_EQ(ReadFile(ProgressFile)[5], 0) << "the byte cannot point at 256";
    result = SaveReviewTest(state, false, today);
    EXPECT_EQ(result.recordNumber, 256) << "the session still knows its record";
    EXPECT_EQ(ReadFile(ProgressFile).size(), 256u * RecordSize);

    // Taking one record out brings it within reach of the header again.
    ASSERT_EQ(RemoveProgressRecord(state, 2, today), SaveStatus::Saved);
    EXPECT_EQ(state.SuspendedTestRecord, 255);
    EXPECT_EQ(ReadFile(ProgressFile)[5], 255);
}

TEST_F(ProgressFileTest, NumbersThatPointNowhereAreIgnored) {
    ProgressHeader h = StartedHeader();
    h.SuspendedTestRecord = 1;   // the header itself
    h.SuspendedExamRecord = 200; // past the end
    Bytes file;
    Append(file, EncodeHeader(h));
    Append(file, EncodeExam(ExamOfKind(2)));
    file.resize(file.size() + 300, 0xEE); // a cut-off record
    WriteFile(ProgressFile, file);
    RestoreSuspended(state);
    EXPECT_EQ(state.SuspendedTestRecord, 0);
    EXPECT_EQ(state.SuspendedExamRecord, 0);
    EXPECT_EQ(ProgressRecordCount(), 2);
    EXPECT_EQ(ReadExamRecords().size(), 1u);

    state.SuspendedTestRecord = 2; // an exam, not a test
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 3);
    EXPECT_EQ(ReadFile(ProgressFile).size(), 3u * RecordSize);
    EXPECT_EQ(Record(ReadFile(ProgressFile), 2), Record(file, 2));
}

TEST_F(ProgressFileTest, StartUpRestoresAndRecovers) {
    state.TestPosition = 2;
    SaveReviewTest(state, false, today);
    state.ExamItemCount = 1;
    state.ExamPosition = 1;
    state.ExamAnswered[1] = 1;
    state.ExamAnswers[1] = 2;
    SaveExam(state, false, today);

    SessionState fresh;
    FillCatalogue(fresh);
    RestoreSuspended(fresh);
    EXPECT_EQ(fresh.SuspendedTestRecord, 2);
    EXPECT_EQ(fresh.TestPosition, 2);
    EXPECT_EQ(fresh.SuspendedExamRecord, 3);
    EXPECT_EQ(fresh.ExamPosition, 1);
    EXPECT_EQ(fresh.ExamAnswers[1], 2);

    const Bytes saved = ReadFile(ProgressFile);
    std::rename(ProgressFile, NewProgressFile);
    RecoverProgressFile();
    EXPECT_EQ(ReadFile(ProgressFile), saved);
    WriteFile(NewProgressFile, Bytes(10, 1));
    RecoverProgressFile();
    EXPECT_FALSE(std::ifstream(NewProgressFile).good()) << "an unfinished rewrite is dropped";
    EXPECT_EQ(ReadFile(ProgressFile), saved);
}
