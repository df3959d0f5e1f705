// The journal of a running test or exam as the next start finds it: whole, it becomes the
// suspended test or exam; cut off or not adding up, it is dropped and the file stays as it was.

#include "core/progress_file.h"
#include "core/run_journal.h"
#include "tests/support/faulty_files.h"
#include "tests/support/study_folder.h"

#include <gtest/gtest.h>

using namespace tessera;

namespace {

const DateValue Today = DateFromParts(2026, 11, 19);

struct JournalCase {
    const char* name;
    bool exam;
    bool suspendedBefore; // the run was saved once already, so it replaces its record
    int cutTo;            // bytes kept of the journal; 0: all
    int flipByte;         // a byte changed after the journal was written; -1: none
    Replayed expected;
};

class RunJournalTest : public testing::TestWithParam<JournalCase> {
protected:
    StudyFolder folder;
    SessionState state;
};

TEST_P(RunJournalTest, WholeJournalsBecomeTheSuspendedRunAndOthersAreDropped) {
    const JournalCase& c = GetParam();
    FillCatalogue(state);
    state.UserName = "Pat Doe";
    state.CurrentTopic = 4;
    state.TestType = 1;
    state.TestItemCount = 3;
    state.TestItems = {0, 7, 8, 9};
    state.TestPosition = 1;
    state.ExamKind = 2;
    state.ExamType = 2;
    state.ExamItemCount = 2;
    state.ExamItems = {0, 11, 12};
    state.ExamKey = {0, 1, 2};
    state.ExamAnswers = {0, 1, 0};
    state.ExamAnswered = {0, 1, 0};
    state.ExamPosition = 1;
    if (c.suspendedBefore)
        c.exam ? SaveExam(state, false, Today) : SaveReviewTest(state, false, Today);
    else
        WriteProgressHeader(ProgressHeader{});
    const std::string saved = folder.read(ProgressFile);

    // The exam's second answer is given but not committed: a break would clear it, the run
    // keeps it.
    state.ExamAnswers[2] = 3;
    ASSERT_TRUE(JournalExam(state, Today));
    EXPECT_EQ(state.ExamAnswers[2], 3) << "journaling leaves the running exam alone";

    // Two more answers, then the machine stops before any save.
    state.TestPosition = 3;
    state.TestTally = {0, 2, 1, 4, 0};
    state.ExamAnswered[2] = 1;
    state.ExamPosition = 2;
    ASSERT_TRUE(c.exam ? JournalExam(state, Today) : JournalReviewTest(state, Today));
    std::string journal = folder.read(JournalFile);
    if (c.cutTo != 0)
        journal.resize(static_cast<std::size_t>(c.cutTo));
    if (c.flipByte >= 0)
        journal[static_cast<std::size_t>(c.flipByte)] ^= 0x20;
    folder.write(JournalFile, journal);

    SessionState next;
    FillCatalogue(next);
    RestoreSuspended(next);
    EXPECT_EQ(ReplayJournal(next, Today), c.expected);
    EXPECT_FALSE(folder.exists(JournalFile));
    if (c.expected == Replayed::Nothing) {
        EXPECT_EQ(folder.read(ProgressFile), saved);
        return;
    }
    // What the next start after that finds.
    SessionState later;
    FillCatalogue(later);
    RestoreSuspended(later);
    // Its record replaced in place, or appended behind the header.
    EXPECT_EQ(folder.read(ProgressFile).size(), static_cast<std::size_t>(2 * RecordSize));
    if (c.exam) {
        EXPECT_EQ(later.SuspendedExamRecord, 2);
        EXPECT_EQ(later.ExamPosition, 2);
        EXPECT_EQ(later.ExamAnswers[2], 3);
    } else {
        EXPECT_EQ(later.SuspendedTestRecord, 2);
        EXPECT_EQ(later.TestPosition, 3);
        EXPECT_EQ(later.TestTally[3], 4);
    }
}

TEST(RunJournalDropTest, AJournalThatCannotBeRemovedIsEmptiedAndNothingIsReplayed) {
    StudyFolder folder;
    SessionState state;
    FillCatalogue(state);
    state.CurrentTopic = 4;
    state.TestType = 1;
    state.TestItemCount = 3;
    state.TestItems = {0, 7, 8, 9};
    state.TestPosition = 2;
    WriteProgressHeader(ProgressHeader{});
    ASSERT_TRUE(JournalReviewTest(state, Today));
    SaveReviewTest(state, true, Today); // the run is finished and saved
    const std::string saved = folder.read(ProgressFile);
    {
        FaultyFiles stuck(FaultyFiles::Fault::RemoveRefused, 0);
        DropJournal();
    }
    SessionState next;
    FillCatalogue(next);
    RestoreSuspended(next);
    EXPECT_EQ(ReplayJournal(next, Today), Replayed::Nothing);
    EXPECT_EQ(folder.read(ProgressFile), saved);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RunJournalTest,
    testing::Values(JournalCase{"NewTest", false, false, 0, -1, Replayed::ReviewTest},
                    JournalCase{"ResumedTest", false, true, 0, -1, Replayed::ReviewTest},
                    JournalCase{"ResumedExam", true, true, 0, -1, Replayed::Exam},
                    JournalCase{"NewExam", true, false, 0, -1, Replayed::Exam},
                    JournalCase{"HalfWritten", false, true, 470, -1, Replayed::Nothing},
                    JournalCase{"NotAddingUp", true, true, 0, 45, Replayed::Nothing},
                    JournalCase{"OneByte", false, false, 1, -1, Replayed::Nothing}),
    [](const testing::TestParamInfo<JournalCase>& info) { return info.param.name; });

} // namespace
