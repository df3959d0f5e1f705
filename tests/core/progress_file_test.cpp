#include "core/progress_file.h"
#include "tests/core/progress_records.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

// Record n of a file, 1 for the header.
std::string Record(const std::string& file, int n) {
    return RecordsOf(file).at(static_cast<size_t>(n - 1));
}

RecordBytes RecordAt(const std::string& file, int n) {
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

class ProgressFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        FillCatalogue(state);
        state.CurrentTopic = 3;
        state.TestItemCount = 2;
        state.TestPosition = 1;
        state.TestItems = {0, 5, 6};
    }
    StudyFolder folder;
    SessionState state;
    const DateValue today = DateFromParts(2026, 11, 19);
};

} // namespace

TEST_F(ProgressFileTest, ABrokenOffTestKeepsOneRecordUntilItIsFinished) {
    folder.write(ProgressFile, std::string(RecordSize, 0)); // a first run's file
    state.TakeCounts[3] = 2;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 2);
    state.TestPosition = 2;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 2);
    std::string file = folder.read(ProgressFile);
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
    EXPECT_EQ(folder.read(ProgressFile)[5], 0);
    state.TestPosition = 1;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 3) << "the next test is new";
}

TEST_F(ProgressFileTest, HeaderOperationsTouchOnlyTheirOwnBytes) {
    folder.write(ProgressFile, File({EncodeHeader(StartedHeader())}));
    const std::string before = folder.read(ProgressFile);
    AppendProgressLog(11, 0.75f, today);
    std::string after = folder.read(ProgressFile);
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
    const std::string full = folder.read(ProgressFile);
    AppendProgressLog(4, 1.0f, today);
    EXPECT_EQ(folder.read(ProgressFile), full) << "with all 36 slots taken nothing changes";

    state.SoundOn = true;
    state.PassingGrade = 75;
    SavePreferences(state);
    after = folder.read(ProgressFile);
    EXPECT_EQ(after.substr(0, 5), std::string({0, 1, 0, 0, 75}));
    EXPECT_TRUE(std::equal(after.begin() + 5, after.end(), full.begin() + 5));

    state.ExamItemCount = 2;
    state.ExamAnswered = {0, 1, 1};
    SaveExam(state, true, today);
    SaveReviewTest(state, false, today);
    after = folder.read(ProgressFile);
    EXPECT_TRUE(std::equal(after.begin() + 589, after.begin() + RecordSize, full.begin() + 589))
        << "the reserved tail passes through every save";
    EXPECT_EQ(after[0], 0);
}

TEST_F(ProgressFileTest, ExamCardRewriteMovesTheSuspendedTestAlong) {
    ProgressHeader h = StartedHeader();
    h.SuspendedTestRecord = 4;
    folder.write(ProgressFile,
                 File({EncodeHeader(h), EncodeExam(ExamOfKind(1)), EncodeReviewTest(TestOfTopic(2)),
                       EncodeReviewTest(TestOfTopic(5)), // suspended
                       EncodeExam(ExamOfKind(3))}));
    state.SuspendedTestRecord = 4;

    // The card kept only the custom exam: it comes first, the two tests follow.
    ASSERT_EQ(RewriteProgressFile(state, std::vector<ExamRecord>{ExamOfKind(3)}, today),
              SaveStatus::Saved);
    // Still record 4: 1 kept + ordinal 2 + 1.
    const std::string expected =
        File({EncodeHeader(h), EncodeExam(ExamOfKind(3)), EncodeReviewTest(TestOfTopic(2)),
              EncodeReviewTest(TestOfTopic(5))});
    EXPECT_EQ(folder.read(ProgressFile), expected);

    ASSERT_EQ(RewriteProgressFile(state, std::vector<ExamRecord>{}, today), SaveStatus::Saved);
    const std::string after = folder.read(ProgressFile);
    ASSERT_EQ(after.size(), 3u * RecordSize);
    EXPECT_EQ(state.SuspendedTestRecord, 3);
    EXPECT_EQ(after[5], 3);
    EXPECT_EQ(Record(after, 3), Record(expected, 4));
    EXPECT_FALSE(folder.exists(NewProgressFile));
}

TEST_F(ProgressFileTest, ReviewCardRewriteAndRemovalMoveTheSuspendedExam) {
    ProgressHeader h = StartedHeader();
    h.SuspendedExamRecord = 3;
    const std::string file = File({EncodeHeader(h), EncodeReviewTest(TestOfTopic(1)),
                                   EncodeExam(ExamOfKind(2)), // suspended
                                   EncodeReviewTest(TestOfTopic(4))});
    folder.write(ProgressFile, file);
    state.SuspendedExamRecord = 3;

    const std::vector<ReviewTestRecord> kept{TestOfTopic(4), TestOfTopic(7), TestOfTopic(1)};
    ASSERT_EQ(RewriteProgressFile(state, kept, today), SaveStatus::Saved);
    std::string after = folder.read(ProgressFile);
    EXPECT_EQ(state.SuspendedExamRecord, 5);
    EXPECT_EQ(after[6], 5);
    EXPECT_EQ(after[5], 0);
    EXPECT_EQ(Record(after, 2)[0], 4);
    EXPECT_EQ(Record(after, 5), Record(file, 3));

    ASSERT_EQ(RemoveProgressRecord(state, 3, today), SaveStatus::Saved);
    after = folder.read(ProgressFile);
    ASSERT_EQ(after.size(), 4u * RecordSize);
    EXPECT_EQ(state.SuspendedExamRecord, 4);
    EXPECT_EQ(after[6], 4);
    EXPECT_EQ(Record(after, 3)[0], 1);
    EXPECT_EQ(Record(after, 4), Record(file, 3));
    EXPECT_TRUE(std::equal(after.begin() + 7, after.begin() + RecordSize, file.begin() + 7));
}

TEST_F(ProgressFileTest, ATestBeyondRecord255IsSavedAndKeptForThisRun) {
    std::string file = File({EncodeHeader(StartedHeader())});
    for (int n = 2; n <= 255; ++n)
        file += File({EncodeExam(ExamOfKind(1))});
    folder.write(ProgressFile, file);
    SaveResult result = SaveReviewTest(state, false, today);
    EXPECT_EQ(result.status, SaveStatus::SuspendedBeyondHeader);
    EXPECT_EQ(result.recordNumber, 256);
    EXPECT_EQ(folder.read(ProgressFile)[5], 0) << "the byte cannot point at 256";
    result = SaveReviewTest(state, false, today);
    EXPECT_EQ(result.recordNumber, 256) << "the session still knows its record";
    EXPECT_EQ(folder.read(ProgressFile).size(), 256u * RecordSize);

    // Taking one record out brings it within reach of the header again.
    ASSERT_EQ(RemoveProgressRecord(state, 2, today), SaveStatus::Saved);
    EXPECT_EQ(state.SuspendedTestRecord, 255);
    EXPECT_EQ(static_cast<uint8_t>(folder.read(ProgressFile)[5]), 255);
}

// Where a suspended number points at a record of the other kind, the test is saved anew.
TEST_F(ProgressFileTest, ASuspendedNumberAtAnExamSavesTheTestAsANewRecord) {
    std::string file = File({EncodeHeader(StartedHeader()), EncodeExam(ExamOfKind(2))});
    file.resize(file.size() + 300, '\xEE'); // a cut-off record
    folder.write(ProgressFile, file);
    EXPECT_EQ(ProgressRecordCount(), 2);
    state.SuspendedTestRecord = 2;
    EXPECT_EQ(SaveReviewTest(state, false, today).recordNumber, 3);
    EXPECT_EQ(folder.read(ProgressFile).size(), 3u * RecordSize);
    EXPECT_EQ(Record(folder.read(ProgressFile), 2), Record(file, 2));
}

// A NewConfig left complete by a crash replaces the progress file; an unfinished one is dropped.
TEST_F(ProgressFileTest, StartUpRecoversACompleteRewrite) {
    const std::string saved = File({EncodeHeader(StartedHeader()), EncodeExam(ExamOfKind(2))});
    folder.write(NewProgressFile, saved);
    RecoverProgressFile();
    EXPECT_EQ(folder.read(ProgressFile), saved);
    EXPECT_FALSE(folder.exists(NewProgressFile));
    folder.write(NewProgressFile, std::string(10, 1));
    RecoverProgressFile();
    EXPECT_FALSE(folder.exists(NewProgressFile)) << "an unfinished rewrite is dropped";
    EXPECT_EQ(folder.read(ProgressFile), saved);
}
